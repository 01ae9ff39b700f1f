// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Files.h"
#include "support/TestProgram.h"
#include "ui/graph/TwoDGraphView.h"

#include <QApplication>
#include <QPainter>
#include <QPrinter>
#include <QSignalSpy>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>
#include <limits>
#include <map>

using namespace brinemark;
using brinemark::test::bytesOf;
using brinemark::test::row;

namespace
{

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// A few lines, and a record of which labels were asked for.
class SmallGraph : public TwoDGraphDataSource, public TwoDGraphDelegate
{
public:
    struct Line {
        QColor colour;
        QList<QPointF> points;
        GraphSymbol symbol = GraphSymbol::None;
        QString name = {};
    };
    QList<Line> lines;
    GraphRange x{0, 10};
    GraphRange y{0, 20};
    /// The labels asked for, in the order of their indexes.
    mutable std::map<GraphAxis, QStringList> asked;

    int numberOfLinesInTwoDGraphView(const TwoDGraphView &) const override { return int(lines.size()); }
    QList<QPointF> dataForLineIndex(const TwoDGraphView &, int line) const override { return lines[line].points; }
    double minimumValueForLineIndex(const TwoDGraphView &, int, GraphAxis axis) const override
    {
        return axis == GraphAxis::X ? x.min : y.min;
    }
    double maximumValueForLineIndex(const TwoDGraphView &, int, GraphAxis axis) const override
    {
        return axis == GraphAxis::X ? x.max : y.max;
    }
    GraphLineAttributes attributesForLineIndex(const TwoDGraphView &, int line) const override
    {
        return {lines[line].colour, 2, lines[line].symbol, lines[line].name};
    }
    QString labelForTickMarkIndex(const TwoDGraphView &, int index, GraphAxis axis, const QString &label) const override
    {
        asked[axis].append(index == asked[axis].size() ? label : QStringLiteral("out of order"));
        return u'<' + label + u'>';
    }
    QString stringForToolTip(const TwoDGraphView &, QPointF point, int line) const override
    {
        return QStringLiteral("line %1 at %2, %3").arg(line).arg(point.x()).arg(point.y());
    }
};

bool alike(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue()) < 24;
}

QColor colourAt(const QImage &image, QPointF position)
{
    return image.pixelColor((position * image.devicePixelRatio()).toPoint());
}

/// Whether a pixel of that colour lies within 3 pixels of the position.
bool shows(const QImage &image, QPointF position, const QColor &colour)
{
    const QPoint centre = (position * image.devicePixelRatio()).toPoint();
    for (int x = centre.x() - 3; x <= centre.x() + 3; ++x) {
        for (int y = centre.y() - 3; y <= centre.y() + 3; ++y) {
            if (image.valid(x, y) && alike(image.pixelColor(x, y), colour))
                return true;
        }
    }
    return false;
}

int pixelsOf(const QImage &image, const QColor &colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += alike(image.pixelColor(x, y), colour) ? 1 : 0;
    }
    return count;
}

QPalette darkPalette()
{
    QPalette palette(QColor("#353535"));
    palette.setColor(QPalette::Base, QColor("#2a2a2a"));
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

} // namespace

class GraphViewTest : public QObject
{
    Q_OBJECT

private:
    const QColor m_red{200, 20, 20};
    const QColor m_blue{20, 110, 200};
    SmallGraph m_graph;
    std::unique_ptr<TwoDGraphView> m_view;

    [[nodiscard]] QImage shot() const { return m_view->grab().toImage(); }

    void turnWheel(QPointF position, int notches, Qt::KeyboardModifiers modifiers = {})
    {
        QWheelEvent event(position, m_view->mapToGlobal(position), {}, QPoint(0, 120 * notches), Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.get(), &event);
    }

private Q_SLOTS:
    void init()
    {
        m_graph = SmallGraph();
        m_graph.lines = {{m_red, {{0, 2}, {4, 8}, {10, 2}}}, {m_blue, {{0, 15}, {10, 15}}}};
        m_view = std::make_unique<TwoDGraphView>();
        m_view->setPalette(QPalette(QColor("#efefef")));
        m_view->resize(500, 300);
        m_view->setDataSource(&m_graph);
        m_view->setDelegate(&m_graph);
        m_view->setNumberOfTickMarks(3, GraphAxis::X);
        m_view->setNumberOfTickMarks(5, GraphAxis::Y);
        m_view->reloadData();
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }

    void cleanup() { m_view.reset(); }

    void linesAreDrawnWhereTheirPointsAre()
    {
        const QImage image = shot();
        QVERIFY(shows(image, m_view->positionOf({2, 5}), m_red));
        QVERIFY(shows(image, m_view->positionOf({7, 5}), m_red));
        QVERIFY(shows(image, m_view->positionOf({5, 15}), m_blue));
        QVERIFY(!shows(image, m_view->positionOf({2, 10}), m_red));
        QVERIFY(!shows(image, m_view->positionOf({2, 10}), m_blue));
    }

    void hiddenLinesAreNotDrawn()
    {
        m_view->setLineVisible(1, false);
        m_view->reloadData();
        QVERIFY(!m_view->isLineVisible(1));
        QCOMPARE(pixelsOf(shot(), m_blue), 0);
        QVERIFY(pixelsOf(shot(), m_red) > 100);
        m_view->setLineVisible(1, true);
        QVERIFY(pixelsOf(shot(), m_blue) > 100);
    }

    /// A line whose colour is close to the background gets an edge and keeps its colour.
    void linesCanBeSeen()
    {
        for (const auto &[palette, colour] :
             {std::pair(QPalette(QColor("#efefef")), QColor::fromRgbF(0.95F, 0.95F, 0.38F)),
              std::pair(darkPalette(), QColor::fromRgbF(0.21F, 0.21F, 0.21F))}) {
            m_graph.lines = {{colour, {{0, 15}, {10, 15}}}};
            m_view->setPalette(palette);
            m_view->reloadData();
            const QImage image = shot();
            const QColor background = palette.color(QPalette::Base);
            const QPointF on = m_view->positionOf({3, 15});
            QVERIFY(shows(image, on, colour));
            int greatest = 0;
            for (double y = -4; y <= 4; y += 0.5) {
                const QColor shown = colourAt(image, on + QPointF(0, y));
                greatest = std::max(greatest, std::abs(shown.lightness() - background.lightness()));
            }
            QVERIFY2(greatest > 60, qPrintable(QString::number(greatest)));
        }
    }

    void bandIsShaded()
    {
        const QPointF within = m_view->positionOf({6, 11});
        const QPointF outside = m_view->positionOf({6, 13});
        const QColor base = colourAt(shot(), within);
        m_view->setHighlightedBand(GraphBand{10, 12, Qt::darkGreen});
        QVERIFY(colourAt(shot(), within) != base);
        QCOMPARE(colourAt(shot(), outside), base);
        m_view->setHighlightedBand(GraphBand{11, 11, Qt::darkGreen});
        QVERIFY(shows(shot(), within, Qt::darkGreen));
        // A band far beyond the axis fills the whole plot.
        m_view->setHighlightedBand(GraphBand{-1e30, 1e30, Qt::darkGreen});
        QVERIFY(colourAt(shot(), outside) != base);
        m_view->setHighlightedBand({});
        QCOMPARE(colourAt(shot(), outside), base);
    }

    void tickLabelsAreAskedOfTheDelegate()
    {
        QCOMPARE(m_graph.asked[GraphAxis::X], QStringList({"0", "4", "8"}));
        QCOMPARE(m_graph.asked[GraphAxis::Y], QStringList({"0", "4", "8", "12", "16"}));

        m_graph.asked.clear();
        m_graph.x = {-1, 1};
        m_graph.y = {1'000'000, 1'234'567};
        m_view->setNumberOfTickMarks(1, GraphAxis::X);
        m_view->reloadData();
        QCOMPARE(m_graph.asked[GraphAxis::X], QStringList("0"));
        QCOMPARE(m_graph.asked[GraphAxis::Y], QStringList({"1000000", "1050000", "1100000", "1150000", "1200000"}));
        QCOMPARE(m_view->tickDigits(GraphAxis::Y), 3);
    }

    void pointsThatAreNotFiniteAreLeftOut()
    {
        m_graph.lines[0].points = {{0, 2},        {2, notANumber}, {notANumber, 7}, {4, 8},
                                   {6, infinite}, {-infinite, 3},  {10, 2}};
        m_view->reloadData();
        const QImage image = shot();
        QVERIFY(shows(image, m_view->positionOf({2, 5}), m_red));
        QVERIFY(shows(image, m_view->positionOf({7, 5}), m_red));
    }

    void emptyDataShowsAxesOnly()
    {
        m_graph.lines[0].points.clear();
        m_graph.lines[1].points.clear();
        m_view->reloadData();
        QCOMPARE(pixelsOf(shot(), m_red) + pixelsOf(shot(), m_blue), 0);
        m_view->setDataSource(nullptr);
        m_view->setDelegate(nullptr);
        m_view->reloadData();
        QVERIFY(m_view->visibleRange(GraphAxis::Y) == (GraphRange{0, 1}));
    }

    void wheelZoomsAroundThePointer()
    {
        const QPointF position = m_view->positionOf({2, 15});
        const QSignalSpy changes(m_view.get(), &TwoDGraphView::zoomChanged);
        m_graph.asked.clear();
        turnWheel(position, 1);
        QVERIFY(m_view->isZoomed());
        QVERIFY(QLineF(m_view->positionOf({2, 15}), position).length() < 8); // the labels change the margins
        QVERIFY(std::abs(m_view->visibleRange(GraphAxis::X).length() - 8) < 1e-9);
        QVERIFY(std::abs(m_view->visibleRange(GraphAxis::Y).length() - 16) < 1e-9);
        // Tick marks keep to round values; the visible range is 0.4 to 8.4.
        QCOMPARE(m_graph.asked[GraphAxis::X], QStringList({"3", "6"}));
        QCOMPARE(changes.size(), 1);
        turnWheel(position, -5);
        QVERIFY(!m_view->isZoomed());

        turnWheel(position, 1, Qt::ControlModifier);
        QVERIFY(m_view->visibleRange(GraphAxis::X) != m_view->wholeRange(GraphAxis::X));
        QVERIFY(m_view->visibleRange(GraphAxis::Y) == m_view->wholeRange(GraphAxis::Y));
        m_view->resetZoom();
        turnWheel(position, 1, Qt::ShiftModifier);
        QVERIFY(m_view->visibleRange(GraphAxis::X) == m_view->wholeRange(GraphAxis::X));
        QVERIFY(m_view->visibleRange(GraphAxis::Y) != m_view->wholeRange(GraphAxis::Y));
    }

    void draggingAndKeysMoveWhatIsVisible()
    {
        QTest::keyClick(m_view.get(), Qt::Key_Minus);
        QVERIFY(!m_view->isZoomed());
        QTest::keyClick(m_view.get(), Qt::Key_Plus);
        QVERIFY(m_view->isZoomed());
        const auto x = [this] { return m_view->visibleRange(GraphAxis::X); };
        const GraphRange before = x();
        const QPoint from = m_view->positionOf({5, 10}).toPoint();
        QTest::mousePress(m_view.get(), Qt::LeftButton, {}, from);
        QMouseEvent moved(QEvent::MouseMove, QPointF(from + QPoint(30, 0)), QPointF(), Qt::NoButton, Qt::LeftButton,
                          {});
        QApplication::sendEvent(m_view.get(), &moved);
        QTest::mouseRelease(m_view.get(), Qt::LeftButton);
        const GraphRange dragged = x();
        QVERIFY(dragged.min < before.min);
        QVERIFY(std::abs(dragged.length() - before.length()) < 1e-9);

        QTest::keyClick(m_view.get(), Qt::Key_Right);
        QVERIFY(x().min > dragged.min);
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        QVERIFY(std::abs(x().min - dragged.min) < 1e-9);
        const GraphRange y = m_view->visibleRange(GraphAxis::Y);
        QTest::keyClick(m_view.get(), Qt::Key_Up);
        QVERIFY(m_view->visibleRange(GraphAxis::Y).max > y.max);
        QTest::keyClick(m_view.get(), Qt::Key_0);
        QVERIFY(!m_view->isZoomed());
        QTest::keyClick(m_view.get(), Qt::Key_Plus);
        QTest::mouseDClick(m_view.get(), Qt::LeftButton, {}, from);
        QVERIFY(!m_view->isZoomed());
    }

    void toolTipNamesThePointBesideThePointer()
    {
        const auto hover = [this](QPointF position) {
            QMouseEvent event(QEvent::MouseMove, position, m_view->mapToGlobal(position), Qt::NoButton, Qt::NoButton,
                              {});
            QApplication::sendEvent(m_view.get(), &event);
        };
        const QPointF point = m_view->positionOf({4, 8});
        const QImage unmarked = shot();
        hover(point + QPointF(8, -8));
        QCOMPARE(QToolTip::text(), QStringLiteral("line 0 at 4, 8"));
        QVERIFY(shot() != unmarked);
        hover(point + QPointF(10, -10));
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(shot(), unmarked);

        m_view->setLineVisible(0, false);
        hover(point);
        QTRY_VERIFY(!QToolTip::isVisible());
        m_view->setLineVisible(0, true);

        // Points outside the visible range have no tool tip.
        turnWheel(m_view->positionOf({8, 8}), 8, Qt::ControlModifier);
        hover(m_view->positionOf({4, 8}));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void symbolsStandWhereTheyHaveRoom()
    {
        // The number of red pixels above a level line.
        const auto standingOut = [this](int count, GraphSymbol symbol) {
            QList<QPointF> points;
            for (int i = 0; i < count; ++i)
                points.append(QPointF(10.0 * i / (count - 1), 10));
            m_graph.lines = {{m_red, points, symbol}};
            m_view->reloadData();
            const QImage image = shot();
            const QPointF end = m_view->positionOf({10, 10});
            int places = 0;
            for (double x = 0; x <= end.x(); ++x)
                places += colourAt(image, QPointF(x, end.y() - 2)).saturation() > 100 ? 1 : 0;
            return places;
        };
        QCOMPARE(standingOut(20, GraphSymbol::None), 0);
        for (const GraphSymbol symbol :
             {GraphSymbol::Square, GraphSymbol::Circle, GraphSymbol::Triangle, GraphSymbol::Diamond})
            QVERIFY(standingOut(20, symbol) >= 20);
        QCOMPARE(standingOut(200, GraphSymbol::Square), 0);
    }

    /// Points at the ends of the axes get a whole symbol, on the screen and on paper.
    void symbolsStandAtTheEdges_data()
    {
        test::columns<QPointF, bool>("point", "alone");
        row("top", QPointF(5, 19.7F), false);
        row("bottom", QPointF(5, 0), false);
        row("left", QPointF(0, 10), false);
        row("right", QPointF(10, 10), false);
        row("top right", QPointF(10, 19.7F), false);
        row("a single point at the top", QPointF(0, 19.7F), true);
    }

    void symbolsStandAtTheEdges()
    {
        const auto [point, alone] = test::fetch<QPointF, bool>("point", "alone");
        m_graph.y = {0, 19.7F};
        QList<QPointF> points{point};
        if (!alone)
            points = {{0, 3}, point, {10, 3}};
        m_graph.lines = {{m_red, points, GraphSymbol::Square}};
        if (alone)
            m_graph.x = {0, 0};
        const QTemporaryDir folder;
        const QString png = folder.filePath(QStringLiteral("graph.png"));
        for (const QSize size : {QSize(500, 300), QSize(491, 277)}) {
            m_view->resize(size);
            m_view->reloadData();
            // All corners of the square show its colour.
            const QImage screen = shot();
            QVERIFY(m_view->saveImage(png));
            const QImage paper(png);
            for (const QPointF corner : {QPointF(-2, -2), QPointF(2, -2), QPointF(-2, 2), QPointF(2, 2)}) {
                const QPointF place = m_view->positionOf(point) + corner;
                QVERIFY(colourAt(screen, place).saturation() > 150);
                QVERIFY(colourAt(paper, place * 2).saturation() > 150);
            }
        }
    }

    void palettesAreFollowedOnScreenOnly()
    {
        m_view->setPalette(darkPalette());
        const QPoint empty = m_view->positionOf({6, 13}).toPoint();
        QCOMPARE(colourAt(shot(), empty), QColor("#2a2a2a"));

        QImage paper(500, 300, QImage::Format_RGB32);
        paper.fill(Qt::magenta);
        QPainter painter(&paper);
        m_view->render(&painter, QRectF(paper.rect()));
        painter.end();
        QCOMPARE(paper.pixelColor(empty), QColor(Qt::white));
        QCOMPARE(pixelsOf(paper, Qt::magenta), 0);
        QVERIFY(shows(paper, m_view->positionOf({5, 15}), m_blue));
        QCOMPARE(colourAt(shot(), empty), QColor("#2a2a2a"));
    }

    void writesPicturesAndPages()
    {
        const QTemporaryDir folder;
        m_view->setPalette(darkPalette());
        const QString png = folder.filePath(QStringLiteral("graph.png"));
        QVERIFY(m_view->saveImage(png));
        const QImage image(png);
        QCOMPARE(image.size(), QSize(1000, 600));
        QCOMPARE(image.pixelColor(1, 1), QColor(Qt::white));
        QVERIFY(shows(image, m_view->positionOf({5, 15}) * 2, m_blue));

        const QString pdf = folder.filePath(QStringLiteral("graph.pdf"));
        QVERIFY(m_view->savePdf(pdf));
        QVERIFY(bytesOf(pdf).startsWith("%PDF"));
        QVERIFY(bytesOf(pdf).contains("/MediaBox [0 0 375")); // 500 pixels of 96 an inch, in points
        QVERIFY(!bytesOf(pdf).contains("/Subtype /Image"));   // vectors

        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath(QStringLiteral("print.pdf")));
        QVERIFY(m_view->print(printer));
        QVERIFY(bytesOf(printer.outputFileName()).startsWith("%PDF"));

        const QDir missing(folder.filePath(QStringLiteral("missing")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot write .*graph\\.png")));
        QVERIFY(!m_view->saveImage(missing.filePath(QStringLiteral("graph.png"))));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot write .*graph\\.pdf")));
        QVERIFY(!m_view->savePdf(missing.filePath(QStringLiteral("graph.pdf"))));
        QVERIFY(!missing.exists());
    }

    // The graph reaches all edges of every page; text and lines are not stretched with it.
    void printsOverTheWholePage()
    {
        for (const auto &[page, magnified] : {std::pair(QSize(1122, 793), 1.2), std::pair(QSize(793, 1122), 1.2),
                                              std::pair(QSize(500, 300), 1.0), std::pair(QSize(300, 200), 0.8)}) {
            m_graph.lines = {{m_red, {{0, 0}, {10, 0}}}, {m_red, {{0, 20}, {10, 20}}}};
            m_view->reloadData();
            QImage image(page, QImage::Format_RGB32);
            QPainter painter(&image);
            m_view->renderPage(&painter, page);
            painter.end();
            QRect lines;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    lines |= image.pixelColor(x, y).saturation() > 60 ? QRect(x, y, 1, 1) : QRect();
            }
            // Around the lines there is only what the labels need.
            const QPointF topLeft = m_view->positionOf({0, 20}) * magnified;
            const QPointF bottomRight = (QPointF(500, 300) - m_view->positionOf({10, 0})) * magnified;
            QVERIFY(std::abs(lines.left() - topLeft.x()) < 3);
            QVERIFY(std::abs(lines.top() - topLeft.y()) < 3);
            QVERIFY(std::abs(page.width() - lines.right() - bottomRight.x()) < 4);
            QVERIFY(std::abs(page.height() - lines.bottom() - bottomRight.y()) < 4);
        }
    }

    // On paper nothing else names the graph and its lines.
    void paperHasTitleAndLegend()
    {
        const QTemporaryDir folder;
        const auto saved = [&] {
            const QString path = folder.filePath(QStringLiteral("graph.png"));
            return m_view->saveImage(path) ? QImage(path) : QImage();
        };
        const int bare = saved().height();
        m_view->setPaperHeading({QString(300, u'x'), {}});
        const QImage longTitle = saved();
        m_view->setPaperHeading({QString(300, u'x'), QStringLiteral("1.3. to 9.3.")});
        const QImage dated = saved();
        const int titledOnly = dated.height();
        const int second = titledOnly - longTitle.height();
        QVERIFY(pixelsOf(dated.copy(0, longTitle.height() - bare - 16, 400, second), QColor(0x20, 0x24, 0x28)) > 50);
        m_view->setPaperAxisName(QStringLiteral(" "));
        const QImage blank = saved();
        m_view->setPaperAxisName(QStringLiteral("Days"));
        QVERIFY(saved() != blank);
        const int titled = saved().height();
        QVERIFY(titled > titledOnly);

        const QColor lime(10, 230, 40); // beyond the top, so that only the legend shows it
        m_graph.lines.append({lime, {{0, 90}, {10, 90}}, GraphSymbol::None, QStringLiteral("pH")});
        m_view->reloadData();
        const QImage named = saved();
        const int legend = named.height() - titled;
        QVERIFY(legend > 0);
        QVERIFY(pixelsOf(named.copy(0, titled, named.width(), legend), lime) > 50);

        m_graph.lines.last().name = QString(200, u'x'); // too long to share a row
        m_graph.lines.append({Qt::black, {{0, 90}, {10, 90}}, GraphSymbol::None, QStringLiteral("KH")});
        m_view->reloadData();
        QVERIFY(saved().height() > named.height());

        m_view->setLineVisible(int(m_graph.lines.size()) - 1, false);
        m_view->setLineVisible(int(m_graph.lines.size()) - 2, false);
        QCOMPARE(saved().height(), titled);
    }
};

BRINEMARK_TEST(QApplication, GraphViewTest)
#include "tst_graph_view.moc"
