// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/TableChecks.h"
#include "support/TestProgram.h"
#include "ui/Colours.h"

#include <QPalette>

#include <cmath>

using namespace brinemark;

class ColoursTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The expected figures are those of other contrast checkers.
    void contrastIsTheRatioOfLuminances()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
        QVERIFY(std::abs(contrast(QColor("#767676"), Qt::white) - 4.54) < 0.01);
        QVERIFY(std::abs(contrast(Qt::blue, Qt::white) - 8.59) < 0.01);
    }

    void canBeReadAsText_data()
    {
        test::columns<QColor, QColor>("window", "base");
        QTest::newRow("Fusion light") << QColor("#efefef") << QColor("#ffffff");
        QTest::newRow("Fusion dark") << QColor("#353535") << QColor("#2a2a2a");
        QTest::newRow("Breeze dark") << QColor("#31363b") << QColor("#1b1e20");
        QTest::newRow("black") << QColor("#000000") << QColor("#000000");
    }

    void canBeReadAsText()
    {
        const auto [window, base] = test::fetch<QColor, QColor>("window", "base");
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::Base, base);
        for (int role = 0; role < int(enumCount<ColourRole>); ++role) {
            const QColor shown = colour(ColourRole(role), palette);
            QVERIFY2(contrast(shown, base) >= 4.5, qPrintable(QString::number(role)));
            QVERIFY2(contrast(shown, window) >= 4.5, qPrintable(QString::number(role)));
        }
    }

    void rolesDiffer()
    {
        for (const QColor &window : {QColor(Qt::white), QColor(Qt::black)}) {
            const QPalette palette(window);
            QVERIFY(colour(ColourRole::Out, palette).red() > colour(ColourRole::Out, palette).green());
            QVERIFY(colour(ColourRole::InRange, palette).green() > colour(ColourRole::InRange, palette).red());
            for (int a = 0; a < int(enumCount<ColourRole>); ++a) {
                for (int b = 0; b < a; ++b)
                    QVERIFY(colour(ColourRole(a), palette) != colour(ColourRole(b), palette));
            }
        }
    }
};

BRINEMARK_TEST(QApplication, ColoursTest)
#include "tst_colours.moc"
