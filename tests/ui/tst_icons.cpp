#include "ui/Icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <functional>

using brinemark::icon;
using brinemark::iconNames;

namespace
{

QPalette paletteOf(const char *window, const char *text, const char *disabled)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(window));
    palette.setColor(QPalette::WindowText, QColor(text));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(disabled));
    palette.setColor(QPalette::HighlightedText, QColor(window));
    return palette;
}

const QPalette &light()
{
    static const QPalette palette = paletteOf("#f0f0f0", "#202020", "#a0a0a0");
    return palette;
}

const QPalette &dark()
{
    static const QPalette palette = paletteOf("#2d2d2d", "#eaeaea", "#777777");
    return palette;
}

QImage imageOf(const QString &name, int side, qreal ratio = 1, QIcon::Mode mode = QIcon::Normal)
{
    return icon(name).pixmap(QSize(side, side), ratio, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The share of the picture's surface that ink covers, 0 to 1.
double coverage(const QImage &image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    return sum / (image.width() * image.height());
}

double luminance(const QColor &colour)
{
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// The contrast ratio of WCAG 2, 1 to 21, of the ink that stands out most, over `window`; lines count, single pixels do
/// not.
double contrastOf(const QImage &image, const QColor &window)
{
    QList<double> ratios;
    const double ground = luminance(window);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < 200)
                continue;
            const double ink = luminance(pixel);
            ratios.append((std::max(ink, ground) + 0.05) / (std::min(ink, ground) + 0.05));
        }
    }
    std::sort(ratios.begin(), ratios.end(), std::greater<>());
    const qsizetype line = image.width() / 4;
    return ratios.size() > line ? ratios.at(line) : 0;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QGuiApplication::setPalette(light()); }

    void everyDrawingIsListedAndEveryNameIsDrawn()
    {
        QStringList listed;
        for (const char *name : iconNames)
            listed.append(QLatin1String(name) + QLatin1String(".svg"));
        listed.sort();
        QStringList drawn = QDir(QStringLiteral(":/icons")).entryList(QDir::Files);
        drawn.sort();
        QCOMPARE(drawn, listed);
    }

    void paints_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : iconNames)
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void paints()
    {
        QFETCH(QString, name);
        QVERIFY(!icon(name).isNull());
        for (const int side : {16, 64}) {
            for (const qreal ratio : {1.0, 2.0}) {
                const QImage image = imageOf(name, side, ratio);
                QCOMPARE(image.size(), QSize(side, side) * ratio);
                QVERIFY2(coverage(image) > 0.03, "hardly any ink");
                QVERIFY2(coverage(image) < 0.97, "a solid block");
            }
        }
        QVERIFY(imageOf(name, 32, 1, QIcon::Disabled) != imageOf(name, 32));
    }

    // Both palettes, one after the other: the same QIcon has to follow by itself.
    void standsOutOnLightAndDark_data() { paints_data(); }

    void standsOutOnLightAndDark()
    {
        QFETCH(QString, name);
        const QIcon before = icon(name);
        for (const QPalette &palette : {light(), dark()}) {
            QGuiApplication::setPalette(palette);
            const QImage image = before.pixmap(QSize(64, 64), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
            const double contrast = contrastOf(image, palette.color(QPalette::Window));
            QVERIFY2(contrast > 3.0, qPrintable(QString::number(contrast)));
        }
    }

    void selectedTakesTheHighlightedTextColourOnly()
    {
        const QImage image = imageOf(QStringLiteral("ConditionsSmall"), 32, 1, QIcon::Selected);
        const QColor expected = light().color(QPalette::HighlightedText);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).alpha() == 255)
                    QCOMPARE(image.pixelColor(x, y).rgb(), expected.rgb());
    }

    // Read without colour, the states must still be told apart.
    void statesDifferInShape()
    {
        const QStringList states{QStringLiteral("StateInRange"), QStringLiteral("StateNear"),
                                 QStringLiteral("StateOut"),     QStringLiteral("StateNotTested"),
                                 QStringLiteral("StateOverdue"), QStringLiteral("StateDone")};
        for (const QString &one : states) {
            for (const QString &other : states) {
                if (one >= other)
                    continue;
                const QImage a = imageOf(one, 32).convertToFormat(QImage::Format_Alpha8);
                const QImage b = imageOf(other, 32).convertToFormat(QImage::Format_Alpha8);
                const QImage inkA = imageOf(one, 32).convertToFormat(QImage::Format_Grayscale8);
                const QImage inkB = imageOf(other, 32).convertToFormat(QImage::Format_Grayscale8);
                int different = 0;
                for (int y = 0; y < 32; ++y)
                    for (int x = 0; x < 32; ++x)
                        different += std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]) > 100 ||
                                     std::abs(inkA.constScanLine(y)[x] - inkB.constScanLine(y)[x]) > 100;
                QVERIFY2(different > 60, qPrintable(one + QLatin1String(" and ") + other));
            }
        }
    }

    void paintsCentredInAnOblongAtDevicePixels()
    {
        QImage canvas(QSize(96, 48), QImage::Format_ARGB32_Premultiplied);
        canvas.setDevicePixelRatio(2);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        icon("StateDone").paint(&painter, QRect(0, 0, 48, 24));
        painter.end();
        const QImage middle = canvas.copy(24, 0, 48, 48).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(qAlpha(canvas.pixel(20, 24)), 0);
        QCOMPARE(qAlpha(canvas.pixel(76, 24)), 0);
        QCOMPARE(middle.pixel(10, 24), imageOf(QStringLiteral("StateDone"), 24, 2).pixel(10, 24));
    }

    void anUnknownNameIsANullIconAndALine()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no icon is named.*Kraken")));
        QVERIFY(icon("Kraken").isNull());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no icon is named")));
        QVERIFY(icon(QString()).isNull());
        QVERIFY(icon("Kraken").pixmap(16, 16).isNull());
    }
};

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
