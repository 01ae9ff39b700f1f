// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/Icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>

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
        for (const qreal ratio : {1.0, 2.0}) {
            const QImage image = imageOf(name, 16, ratio);
            QCOMPARE(image.size(), QSize(16, 16) * ratio);
            QVERIFY2(coverage(image) > 0.03, "hardly any ink");
            QVERIFY2(coverage(image) < 0.97, "a solid block");
        }
        const QImage plain = imageOf(name, 32);
        QVERIFY(imageOf(name, 32, 1, QIcon::Disabled) != plain);
        // An icon that is already in use follows a change of the palette.
        const QIcon before = icon(name);
        QGuiApplication::setPalette(paletteOf("#2d2d2d", "#eaeaea", "#777777"));
        QVERIFY(before.pixmap(QSize(32, 32), 1.0).toImage().convertToFormat(plain.format()) != plain);
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
    }
};

BRINEMARK_TEST(QApplication, TestIcons)
#include "tst_icons.moc"
