// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/DateText.h"
#include "chemistry/ConditionSeries.h"
#include "model/Tank.h"
#include "support/LocalNumber.h"
#include "support/TestProgram.h"

#include <QRegularExpression>

#include <cmath>

using namespace brinemark;
using test::row;

namespace
{

using Values = QList<float>;
using Days = QList<double>;

const QDateTime firstMoment(QDate(2026, 3, 1), QTime(18, 0), Qt::UTC);

std::shared_ptr<ConditionData> testOn(double day)
{
    auto record = std::make_shared<ConditionData>(Blank{});
    record->date = firstMoment.addMSecs(qRound64(day * 86'400'000));
    return record;
}

} // namespace

/// The lines of a graph, compared with numbers calculated by hand.
class TestConditionSeries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tank = std::make_shared<Tank>(QStringLiteral("Reef")); }

    void gaps_data()
    {
        test::columns<Days, Values, Values>("days", "tested", "drawn");
        row("all tested", Days{0, 1.5, 2}, Values{7, 8, 7.5F}, Values{7, 8, 7.5F});
        row("straight through a gap", Days{0, 1, 2, 3}, Values{7, -1, -1, 8},
            Values{7, 7 + 1.0F / 3, 7 + 1.0F / 3 * 2, 8});
        row("by count, not by date", Days{0, 9, 10}, Values{6, -1, 8}, Values{6, 7, 8});
        row("down", Days{0, 1, 2, 3, 4}, Values{8, -1, -1, -1, 0}, Values{8, 6, 4, 2, 0});
        row("flat at the start", Days{0, 1, 2}, Values{-1, -1, 7.5F}, Values{7.5F, 7.5F, 7.5F});
        row("flat at the end", Days{0, 1, 2, 3}, Values{7, 6, -1, -1}, Values{7, 6, 6, 6});
        row("any negative value", Days{0, 1, 2}, Values{1, -0.25F, 3}, Values{1, 2, 3});
        row("no number", Days{0, 1, 2}, Values{1, std::nanf(""), 3}, Values{1, 2, 3});
        row("a measured nothing", Days{0, 1, 2}, Values{0, 0, 5}, Values{0, 0, 5});
        row("never tested", Days{0, 1}, Values{-1, -1}, Values{});
    }
    void gaps()
    {
        const auto [days, tested, drawn] = test::fetch<Days, Values, Values>("days", "tested", "drawn");
        for (int i = 0; i < days.size(); ++i) {
            auto record = testOn(days[i]);
            record->ph = tested[i];
            m_tank->conditionListArray().push_back(record);
        }
        const ConditionSeries series = seriesOf({"date", "ph"});
        const QList<QPointF> points = series.points(Parameter::Ph);
        QCOMPARE(series.isTested(Parameter::Ph), !drawn.isEmpty());
        QCOMPARE(points.size(), drawn.size());
        for (int i = 0; i < drawn.size(); ++i)
            QCOMPARE(points[i], QPointF(float(days[i]), drawn[i]));
    }

    void axes_data()
    {
        test::columns<Days, float, double, int, int>("days", "highest", "maxYValue", "yTicks", "xTicks");
        row("ten days", Days{0, 10}, 7.5F, 20.0, 10, 10);
        row("thirty days", Days{0, 30}, 35.0F, 35.0, 10, 12);
        row("a second less than twelve", Days{0, 12 - 1 / 86400.0}, 40.0F, 40.0, 10, 11);
        row("twelve", Days{0, 12}, 40.25F, 40.25, 4, 12);
        row("one day", Days{0, 1}, 41.0F, 41.0, 5, 2);
        row("one test", Days{0}, 200.0F, 200.0, 20, 2);
    }
    void axes()
    {
        const auto [days, highest] = test::fetch<Days, float>("days", "highest");
        for (const double day : days)
            m_tank->conditionListArray().push_back(testOn(day));
        m_tank->conditionListArray().back()->nitrate = highest;
        m_tank->conditionListArray().back()->temp = 1000;  // never drawn
        m_tank->conditionListArray().back()->copper = 500; // not shown
        const ConditionSeries series = seriesOf({"temp", "nitrate"});
        QTEST(series.maxYValue(), "maxYValue");
        QTEST(numberOfYTickMarks(series.maxYValue()), "yTicks");
        QTEST(series.numberOfXTickMarks(), "xTicks");
        QCOMPARE(series.maxXValue(), float(days.last()));
    }

    void wholeNumbers()
    {
        m_tank->conditionListArray() = {testOn(0), testOn(1), testOn(2)};
        m_tank->conditionListArray()[0]->calcium = 400;
        m_tank->conditionListArray()[2]->calcium = 421;
        const ConditionSeries series = seriesOf({"calcium"});
        QCOMPARE(series.maxYValue(), 421.0);
        QCOMPARE(series.points(Parameter::Calcium)[1], QPointF(1, 410.5));
    }

    void lines_data()
    {
        using Lines = QList<Parameter>;
        test::columns<QStringList, Lines>("columns", "lines");
        row("in the order of the columns", QStringList{"kH", "date", "temp", "ph"},
            Lines{Parameter::KH, Parameter::Ph});
        row("temperature alone", QStringList{"date", "temp"}, Lines{});
    }
    void lines()
    {
        const auto [columns, lines] = test::fetch<QStringList, QList<Parameter>>("columns", "lines");
        QVERIFY(seriesOf(columns).colorIdentifierArray().empty()); // no test, no line
        m_tank->conditionListArray() = {testOn(0), testOn(1)};
        const ConditionSeries series = seriesOf(columns);
        QCOMPARE(QList<Parameter>(series.colorIdentifierArray().begin(), series.colorIdentifierArray().end()), lines);
    }

    void range()
    {
        // Unordered days: inside, at both ends, before and after the range, and a test without a date.
        for (const double day : {3.0, 1.0, 5.0, 0.0, 4.0, 2.0, 3.0})
            m_tank->conditionListArray().push_back(testOn(day));
        m_tank->conditionListArray().push_back(std::make_shared<ConditionData>(Blank{}));
        m_tank->conditionListArray()[0]->ph = 6;
        m_tank->conditionListArray()[6]->ph = 7;
        const auto in = [&](double from, double to) {
            return ConditionSeries(*m_tank->condition(), testOn(from)->date, testOn(to)->date);
        };
        Days days;
        const ConditionSeries inside = in(1, 4);
        for (const auto &record : inside.graphArray())
            days << double(firstMoment.secsTo(record->date)) / 86400;
        QCOMPARE(days, (Days{1, 2, 3, 3, 4}));
        QCOMPARE(in(3, 3.5).graphArray().front()->ph, 6.0F); // tests of one moment keep the log's order

        // The same moments in another zone.
        const QDateTime start = testOn(1)->date.toOffsetFromUtc(5 * 3600);
        QCOMPARE(ConditionSeries(*m_tank->condition(), start, start.addDays(1)).graphArray().size(), std::size_t(2));

        const ConditionSeries none = in(10, 20);
        QVERIFY(none.graphArray().empty());
        QCOMPARE(none.maxXValue(), 0.0F);
        QCOMPARE(none.maxYValue(), 20.0);
        QCOMPARE(none.numberOfXTickMarks(), 2);
    }

    void labels()
    {
        for (const QStringList &labels : {QStringList{"0", "1", "0"}, QStringList{"2.7272727", "3", "2.73"},
                                          QStringList{"1250", "1251", "1.25e+03"}}) {
            QCOMPARE(dayTickLabel(labels[0]), labels[1]);
            QCOMPARE(valueTickLabel(labels[0]), test::local(labels[2]));
            QCOMPARE(valueTickLabel(labels[0], 1), test::local(labels[2]));
        }
        QCOMPARE(valueTickLabel(QStringLiteral("1.025"), 4), test::local(QStringLiteral("1.025")));
    }

    void toolTips_data()
    {
        // %1 to %3 are the first days of the range.
        test::columns<Parameter, QPointF, QString>("parameter", "point", "tip");
        row("tested", Parameter::Ph, QPointF(0, 7), "x: %1\ny: 7.0\npH: 7.00 on %1");
        row("filled in", Parameter::Ph, QPointF(1.125, 7.25),
            "x: %3\ny: 7.25\npH: not tested on %2, filled in from other tests");
        row("value as the log shows it", Parameter::Calcium, QPointF(1.125, 420),
            "x: %3\ny: 420.0\nCalcium: 420 on %2");
        row("no point", Parameter::Ph, QPointF(1.125, 7.125), "x: %3\ny: 7.125");
    }
    void toolTips()
    {
        auto [parameter, point, tip] = test::fetch<Parameter, QPointF, QString>("parameter", "point", "tip");
        m_tank->conditionListArray() = {testOn(0), testOn(1.125), testOn(1.125), testOn(10)};
        m_tank->conditionListArray()[0]->ph = 7;
        m_tank->conditionListArray()[3]->ph = 7.75F;
        m_tank->conditionListArray()[2]->calcium = 420; // of two tests at one point, the one with a value counts
        static const QRegularExpression fullStop(QStringLiteral("(?<=\\d)\\.(?=\\d)"));
        tip.replace(fullStop, QLocale().decimalPoint());
        for (int day = 0; day < 3; ++day)
            tip.replace(QStringLiteral("%%1").arg(day + 1), localeDateText(firstMoment.addDays(day)));
        QCOMPARE(seriesOf({"ph", "calcium"}).toolTip(point, parameter), tip);
        QCOMPARE(ConditionSeries().toolTip(point, parameter), QString());
    }

    void scale()
    {
        QCOMPARE(scaledMaxYValue(420, 0), 420.0);
        QCOMPARE(scaledMaxYValue(420, 400), 20.0);
        QCOMPARE(scaledMaxYValue(20, 20), 0.1);
        QCOMPARE(scaledMaxYValue(20, 19.95F), 0.1);
        QCOMPARE(scaledMaxYValue(8.1F, 0.3F), double(8.1F - 0.3F)); // subtracted in single precision
    }

private:
    ConditionSeries seriesOf(const QStringList &columns)
    {
        ColumnInfoArray layout;
        for (const QString &identifier : columns)
            layout.push_back({identifier, 0});
        m_tank->condition()->setColumnInfoArray(layout);
        return {*m_tank->condition(), firstMoment, firstMoment.addYears(1)};
    }

    std::shared_ptr<Tank> m_tank;
};

BRINEMARK_TEST(QCoreApplication, TestConditionSeries)
#include "tst_condition_series.moc"
