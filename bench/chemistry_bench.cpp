// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionColumns.h"
#include "chemistry/ConditionCsv.h"
#include "model/KeyAccess.h"
#include "model/Parameters.h"
#include "model/Tank.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <random>

using namespace brinemark;

namespace
{

/// Fills a log with one test a day, with values in the steps of test kits. `tested` is the average number of parameters
/// with a value in each test.
void fillLog(Tank &tank, int count, unsigned tested)
{
    std::minstd_rand random(7);
    const QDateTime first(QDate(1750, 1, 1), QTime(18, 0));
    for (int i = 0; i < count; ++i) {
        auto test = std::make_shared<ConditionData>(&tank);
        test->date = first.addDays(i);
        for (const ParameterTraits &traits : parameterTable) {
            if (random() % parameterCount < tested)
                setValueForKey(*test, traits.identifier, double(random() % 10'000) / 20);
        }
        tank.condition()->appendRecord(test);
    }
}

void csvOfALog(benchmark::State &state)
{
    const auto tank = std::make_shared<Tank>(QStringLiteral("Tank"));
    fillLog(*tank, int(state.range(0)), unsigned(state.range(1)));
    std::vector<CsvColumn> columns;
    for (const ConditionColumnTraits &column : conditionColumnTable)
        columns.push_back({column.identifier.toString(), text(column.headerKey)});
    for (auto _ : state)
        benchmark::DoNotOptimize(conditionCsv(*tank->condition(), columns));
}
BENCHMARK(csvOfALog)->Args({100'000, 5})->Args({100'000, parameterCount})->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
