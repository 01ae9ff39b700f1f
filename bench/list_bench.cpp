// SPDX-License-Identifier: GPL-3.0-or-later

// The water-test table with many rows: showing the view, sorting by a column, adding a row with its re-sort. The
// targets with 10,000 tests are 50 ms for each of these and 16 ms for a frame of scrolling, including painting. Run it
// with QT_QPA_PLATFORM=offscreen.

#include "chemistry/views/ConditionListController.h"
#include "support/ListDriver.h"
#include "support/TestHome.h"
#include "ui/AlertPanelDontAskAgain.h"

#include <QApplication>
#include <QScrollBar>

#include <benchmark/benchmark.h>

using namespace brinemark;

namespace
{

std::shared_ptr<Tank> tankOf(int tests)
{
    auto tank = std::make_shared<Tank>(QStringLiteral("Reef"));
    for (int i = 0; i < tests; ++i) {
        auto record = std::make_shared<ConditionData>(tank.get());
        record->date = QDateTime(QDate(2000, 1, 1).addDays(i), QTime(9, 0), Qt::OffsetFromUTC, 3600); // as in a file
        record->ph = 7.0F + float(i * 7919 % 1000) / 1000;                                            // unsorted
        record->temp = 25;
        tank->condition()->appendRecord(record);
    }
    return tank;
}

/// Shows the table in a window of its own.
class Log
{
public:
    explicit Log(int tests)
    {
        AlertPanelDontAskAgain::setValue(1, QStringLiteral("DontShowAgainNotTested"));
        shell.appendTank(tankOf(tests));
        shell.window.resize(1080, 720);
        test::present(controller(), shell);
        paint();
    }
    ~Log() { ConditionListController::destroyShared(); }
    Log(const Log &) = delete;
    Log &operator=(const Log &) = delete;

    static ConditionListController &controller() { return ConditionListController::sharedInstance(); }
    static void paint()
    {
        controller().table()->viewport()->repaint();
        QCoreApplication::processEvents();
    }

    test::RecordingShell shell;
};

void showView(benchmark::State &state)
{
    Log log(int(state.range(0)));
    Tank *full = log.shell.current;
    log.shell.appendTank(tankOf(1));
    Tank *other = log.shell.current;
    for (auto _ : state) {
        state.PauseTiming();
        log.shell.current = other;
        Log::controller().updateDisplay();
        Log::paint();
        state.ResumeTiming();
        log.shell.current = full;
        Log::controller().setKeyViewWithTankList(&log.shell.window, &log.shell.window);
        Log::paint();
    }
}

void sortByColumn(benchmark::State &state)
{
    const Log log(int(state.range(0)));
    const int ph = Log::controller().columnFromTag(22);
    for (auto _ : state) {
        test::clickHeader(Log::controller().table(), ph); // reverses the order each time
        Log::paint();
    }
}

void addRow(benchmark::State &state)
{
    const Log log(int(state.range(0)));
    for (auto _ : state) {
        Log::controller().newEntry();
        Log::paint();
    }
}

void editInSortColumn(benchmark::State &state)
{
    const Log log(int(state.range(0)));
    QTableView &table = *Log::controller().table();
    log.shell.current->condition()->setSortIdentifier(QStringLiteral("ph"));
    Log::controller().sortAndSelect();
    const int ph = Log::controller().columnFromTag(22);
    bool up = false;
    for (auto _ : state) {
        up = !up;
        const int row = up ? 0 : table.model()->rowCount() - 1;
        table.model()->setData(table.model()->index(row, ph), up ? 99.0 : 0.0);
        table.selectRow(5000); // a change of the selection triggers the pending re-sort
        Log::paint();
    }
}

/// Measures one frame of scrolling by the wheel with all eighteen columns shown.
void scrollFrame(benchmark::State &state)
{
    Log log(int(state.range(0)));
    log.shell.current->condition()->initColumnInfoArray();
    Log::controller().updateDisplay();
    QScrollBar &bar = *Log::controller().table()->verticalScrollBar();
    for (auto _ : state) {
        bar.setValue(bar.value() + 3 > bar.maximum() ? 0 : bar.value() + 3);
        Log::paint();
    }
}

} // namespace

BENCHMARK(showView)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(sortByColumn)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(addRow)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollFrame)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(editInSortColumn)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    const test::TestHome home;
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
