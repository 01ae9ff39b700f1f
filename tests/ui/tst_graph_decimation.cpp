// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/graph/Decimate.h"
#include "ui/graph/GraphRange.h"
#include "ui/graph/Polyline.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

using namespace brinemark;
using brinemark::test::row;

namespace
{

bool left(const QPointF &a, const QPointF &b)
{
    return a.x() < b.x();
}

/// Random points in ascending x; many share an x, others have gaps between them.
QList<QPointF> randomPoints(int count, quint32 seed)
{
    QRandomGenerator random(seed);
    QList<QPointF> points;
    double x = -5;
    for (int i = 0; i < count; ++i) {
        if (random.bounded(3) > 0)
            x += random.bounded(random.bounded(20) == 0 ? 5.0 : 0.1);
        points.append(QPointF(x, random.bounded(200.0) - 100));
    }
    return points;
}

struct Extremes {
    double min = std::numeric_limits<double>::infinity();
    double max = -min;
    friend bool operator==(const Extremes &, const Extremes &) = default;
};

/// What each column shows of the points within the range.
std::map<int, Extremes> extremesByColumn(const QList<QPointF> &points, double xMin, double xMax, int columns)
{
    std::map<int, Extremes> result;
    const double width = (xMax - xMin) / columns;
    for (const QPointF &point : points) {
        if (point.x() < xMin || point.x() > xMax)
            continue;
        int column = 0;
        while (column < columns - 1 && point.x() >= xMin + width * (column + 1))
            ++column;
        Extremes &extremes = result[column];
        extremes.min = std::min(extremes.min, point.y());
        extremes.max = std::max(extremes.max, point.y());
    }
    return result;
}

} // namespace

class GraphDecimationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatColumnsShow_data()
    {
        // from: parts of the whole range
        test::columns<int, double, double, int>("count", "from", "to", "columns");
        row("dense", 10000, 0.0, 1.0, 100);
        row("a part", 10000, 0.31, 0.64, 100);
        row("beside the points", 1000, 1.5, 2.5, 60);
    }

    void keepsWhatColumnsShow()
    {
        const auto [count, from, to, columns] = test::fetch<int, double, double, int>("count", "from", "to", "columns");
        for (quint32 seed = 1; seed <= 5; ++seed) {
            const QList<QPointF> points = randomPoints(count, seed);
            const double start = points.first().x();
            const double length = points.last().x() - start;
            const double xMin = start + length * from;
            const double xMax = start + length * to;
            const QList<QPointF> kept = decimated(points, xMin, xMax, columns);

            QVERIFY(kept.size() <= 4 * columns + 2);
            QVERIFY(std::is_sorted(kept.begin(), kept.end(), left));
            auto place = points.begin();
            for (const QPointF &point : kept) {
                place = std::find(place, points.end(), point);
                QVERIFY2(place != points.end(), "a point of its own, in its order, no more often than it was");
                ++place;
            }
            QCOMPARE(extremesByColumn(kept, xMin, xMax, columns), extremesByColumn(points, xMin, xMax, columns));

            // The points before and after the range are kept, for the line at the edges.
            const auto inside =
                std::partition_point(points.begin(), points.end(), [xMin](const QPointF &p) { return p.x() < xMin; });
            if (inside != points.begin())
                QCOMPARE(kept.first(), *(inside - 1));
            const auto after =
                std::partition_point(points.begin(), points.end(), [xMax](const QPointF &p) { return p.x() <= xMax; });
            if (after != points.end())
                QCOMPARE(kept.last(), *after);
        }
    }

    void keepsFirstAndLastOfAColumn()
    {
        const QList<QPointF> points{{0.0, 5}, {0.1, 6}, {0.2, 1}, {0.3, 4}, {0.4, 9}, {0.5, 7}, {0.6, 8}};
        const QList<QPointF> kept{{0.0, 5}, {0.2, 1}, {0.4, 9}, {0.6, 8}};
        QCOMPARE(decimated(points, 0, 1, 1), kept);
        QCOMPARE(decimated(points, 0, 1, 7), points);
    }

    /// A dense line drawn by its strokes looks like the same line drawn segment by segment.
    void denseLinesShowEveryExtent()
    {
        const QRectF area(0, 0, 200, 100);
        for (quint32 seed = 1; seed <= 10; ++seed) {
            QRandomGenerator random(seed);
            const double spread = 10.0 * seed;
            QPolygonF line;
            for (double x = 0; x < 200; x += 0.2)
                line.append({x, 50 + 20 * std::sin(x / 9) + (random.bounded(1.0) - 0.5) * spread});
            const auto paint = [](const GraphStrokes &strokes) {
                QImage image(200, 100, QImage::Format_RGB32);
                image.fill(Qt::white);
                QPainter painter(&image);
                painter.translate(0.5, 0.5);
                painter.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::SquareCap));
                painter.drawLines(strokes.segments + strokes.uprights);
                for (const QRectF &fill : strokes.fills)
                    painter.fillRect(fill, Qt::black);
                return image;
            };
            const GraphStrokes dense = strokesOf(line, area, 1);
            GraphStrokes plain;
            for (qsizetype i = 1; i < line.size(); ++i)
                plain.segments.append(QLineF(line[i - 1], line[i]));
            const QImage image = paint(dense);
            const QImage reference = paint(plain);
            int different = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    different += image.pixel(x, y) != reference.pixel(x, y) ? 1 : 0;
            }
            // The pixel at either end of a column may be rounded differently.
            QVERIFY2(different < 3 * image.width(), qPrintable(QString::number(different)));
            QVERIFY(dense.segments.size() + dense.uprights.size() < 2 * image.width() + 10);
            if (seed == 1 || seed == 10) // a thin line encloses nothing
                QCOMPARE(dense.fills.isEmpty(), seed == 1);
        }
    }

    /// Corners far away do not change where the line crosses the area.
    void segmentsAreCutAtTheArea_data()
    {
        test::columns<QLineF, QLineF>("segment", "visible");
        row("through", QLineF(-1e9, 50, 1e9, 50), QLineF(0, 50, 100, 50));
        row("upright", QLineF(50, -1e9, 50, 1e9), QLineF(50, 0, 50, 100));
        row("corner to corner", QLineF(-1e9, -1e9, 1e9, 1e9), QLineF(0, 0, 100, 100));
        row("entering", QLineF(-100, 0, 50, 75), QLineF(0, 50, 50, 75));
        row("leaving downwards", QLineF(50, 50, 150, 250), QLineF(50, 50, 75, 100));
        row("passing by", QLineF(-50, 60, 60, -50).translated(-20, -20), QLineF());
    }

    void segmentsAreCutAtTheArea()
    {
        const auto [segment, visible] = test::fetch<QLineF, QLineF>("segment", "visible");
        const QPolygonF line({segment.p1(), segment.p2()});
        const QList<QLineF> segments = strokesOf(line, QRectF(0, 0, 100, 100), 1).segments;
        QCOMPARE(segments.size(), visible.isNull() ? 0 : 1);
        if (!segments.isEmpty()) {
            QVERIFY(QLineF(segments[0].p1(), visible.p1()).length() < 1e-6);
            QVERIFY(QLineF(segments[0].p2(), visible.p2()).length() < 1e-6);
        }
    }

    void rangesCanBeDrawn()
    {
        constexpr double inf = std::numeric_limits<double>::infinity();
        QVERIFY(drawableRange(20, 0) == (GraphRange{0, 20})); // swapped
        QVERIFY(drawableRange(7, 7) == (GraphRange{7, 8}));
        QVERIFY(drawableRange(inf, -inf) == (GraphRange{0, 1}));
        QVERIFY(drawableRange(std::nan(""), std::nan("")) == (GraphRange{0, 1}));
        QVERIFY(drawableRange(0, 1e-9) == (GraphRange{0, 1e-9}));
        QVERIFY(drawableRange(-1e300, 1e300) == (GraphRange{-1e100, 1e100}));
    }

    void zoomKeepsItsAnchorAndItsLimits()
    {
        const GraphRange whole{10, 110};
        QVERIFY(zoomedRange(whole, whole, 60, 0.5) == (GraphRange{35, 85}));
        QVERIFY(zoomedRange(whole, whole, 1000, 0.5) == (GraphRange{60, 110})); // an anchor outside counts as the edge
        QVERIFY(zoomedRange({35, 85}, whole, 40, 100) == whole);
        QVERIFY(zoomedRange({100, 110}, whole, 100, 2) == (GraphRange{90, 110})); // the whole range is the limit

        GraphRange visible = whole;
        for (int i = 0; i < 500; ++i)
            visible = zoomedRange(visible, whole, 42, 0.5);
        QVERIFY(visible.contains(42));
        QVERIFY(std::abs(visible.length() - 1e-4) < 1e-9);

        QVERIFY(movedRange({35, 85}, whole, 10) == (GraphRange{45, 95}));
        QVERIFY(movedRange({35, 85}, whole, -1e12) == (GraphRange{10, 60}));

        // Where doubles lie far apart, a millionth of the range would be narrower than their distance.
        const GraphRange far{1e9, 1e9 + 1};
        visible = far;
        for (int i = 0; i < 100; ++i)
            visible = zoomedRange(visible, far, 1e9 + 0.5, 0.5);
        QVERIFY(visible.length() >= 1e-3 && visible.length() < 0.1);
    }
};

BRINEMARK_TEST(QCoreApplication, GraphDecimationTest)
#include "tst_graph_decimation.moc"
