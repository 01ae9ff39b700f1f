#include "chemistry/ConditionColumns.h"
#include "chemistry/ConditionCsv.h"
#include "model/Tank.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <random>

using namespace brinemark;

namespace
{

/// A log that was kept every day: a few values tested each time, in steps that test kits have.
void fillLog(Tank &tank, int count)
{
    std::minstd_rand random(7);
    const QDateTime first(QDate(1750, 1, 1), QTime(18, 0));
    for (int i = 0; i < count; ++i) {
        auto test = std::make_shared<ConditionData>(&tank);
        test->date = first.addDays(i);
        test->ph = 7 + float(random() % 20) / 20;
        test->temp = 24 + float(random() % 40) / 10;
        test->nitrate = float(random() % 200) / 4;
        test->kH = float(random() % 30) / 2;
        test->magnesium = qint32(1200 + random() % 300);
        tank.condition()->appendRecord(test);
    }
}

void csvOfALog(benchmark::State &state)
{
    const auto tank = std::make_shared<Tank>(QStringLiteral("Tank"));
    fillLog(*tank, int(state.range(0)));
    std::vector<CsvColumn> columns;
    for (const ConditionColumnTraits &column : conditionColumnTable)
        columns.push_back({column.identifier.toString(), text(column.headerKey)});
    for (auto _ : state)
        benchmark::DoNotOptimize(conditionCsv(*tank->condition(), columns));
}
BENCHMARK(csvOfALog)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
