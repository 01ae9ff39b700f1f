// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/graph/TickPositions.h"

#include <cmath>

using namespace brinemark;
using brinemark::test::row;

class GraphTicksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standAtRoundValues_data()
    {
        test::columns<GraphRange, int, bool, QList<double>>("visible", "count", "whole", "positions");
        row("as many as wanted", GraphRange{0, 10}, 10, true, QList<double>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
        row("part of the last day", GraphRange{0, 10.99}, 10, true, QList<double>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
        row("not quite three days", GraphRange{0, 2.7}, 2, true, QList<double>{0, 1});
        row("magnified days", GraphRange{1.9, 5.5}, 3, true, QList<double>{2, 3, 4});
        row("a month", GraphRange{0, 30}, 12, true, QList<double>{0, 3, 6, 9, 12, 15, 18, 21, 24, 27, 30});
        row("five days", GraphRange{0, 5}, 2, true, QList<double>{0, 3});
        row("part of a day", GraphRange{0, 0.25}, 2, true, QList<double>{0, 0.2});
        row("between two days", GraphRange{3.2, 3.7}, 12, true,
            QList<double>{3.2, 3.25, 3.3, 3.35, 3.4, 3.45, 3.5, 3.55, 3.6, 3.65, 3.7});
        row("no whole quarters", GraphRange{0, 23}, 10, true, QList<double>{0, 3, 6, 9, 12, 15, 18, 21});
        row("quarters", GraphRange{0, 23}, 10, false, QList<double>{0, 2.5, 5, 7.5, 10, 12.5, 15, 17.5, 20, 22.5});
        row("tenths", GraphRange{0, 1}, 10, false, QList<double>{0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9});
        row("magnified", GraphRange{1.0231, 1.0262}, 5, false, QList<double>{1.024, 1.025, 1.026});
        row("around nothing", GraphRange{-1, 1}, 4, false, QList<double>{-1, -0.5, 0, 0.5});
        row("huge", GraphRange{0, 1e100}, 2, false, QList<double>{0, 5e99});
        row("none", GraphRange{0, 10}, 0, false, QList<double>{});
    }
    void standAtRoundValues()
    {
        const auto [visible, count, whole] = test::fetch<GraphRange, int, bool>("visible", "count", "whole");
        QTEST(tickPositions(visible, count, whole), "positions");
    }

    /// Three digits state every tick mark of an axis that begins at 0 and has as many marks as graphs get.
    void threeDigitsAreEnough()
    {
        for (const int count : {2, 5, 10, 20}) {
            for (int top = 1; top <= 25'000; top += 7) {
                const QList<double> positions = tickPositions({0, top / 10.0}, count, false);
                QVERIFY2(significantDigits(positions) <= 3, qPrintable(QString::number(top)));
                QVERIFY(positions.size() >= count / 2 && positions.size() <= count);
            }
        }
    }

    void digits()
    {
        QCOMPARE(significantDigits({0, 100, 1.5}), 2);
        QCOMPARE(significantDigits({1.024, 1.025}), 4);
        QCOMPARE(significantDigits({1.0 / 3}), 15);
    }
};

BRINEMARK_TEST(QCoreApplication, GraphTicksTest)
#include "tst_graph_ticks.moc"
