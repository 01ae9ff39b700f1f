// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/ExpenseListController.h"
#include "journals/views/InventoryListController.h"
#include "journals/views/NoteListController.h"
#include "journals/views/ScheduleListController.h"
#include "support/AlertDriver.h"
#include "support/ListDriver.h"
#include "support/TestProgram.h"

#include <QTableView>

using namespace brinemark;
using test::column;
using test::present;

namespace
{

/// Records which activities are about to be deleted.
struct DeletionWitness : ModelObserver {
    QStringList heard;
    void scheduleDataDeleted(ScheduleData &record) override { heard.append(record.activity); }
};

std::shared_ptr<Tank> makeTank()
{
    auto tank = std::make_shared<Tank>(QStringLiteral("Reef"));
    const struct {
        const char *activity;
        int day;
    } activities[]{{"Water change", 3}, {"feed", 1}, {"Clean", 2}};
    for (const auto &[name, day] : activities) {
        auto record = std::make_shared<ScheduleData>(tank.get());
        record->activity = QLatin1String(name);
        record->date = QDateTime(QDate(2026, 5, day), QTime(12, 0));
        tank->schedule()->appendRecord(record);
        auto note = std::make_shared<NoteData>(tank.get());
        note->note = record->activity;
        note->date = record->date;
        tank->note()->appendRecord(note);
    }
    return tank;
}

} // namespace

class TestJournalTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        m_tank = makeTank();
        m_shell->appendTank(m_tank);
    }
    void cleanup()
    {
        ScheduleListController::destroyShared();
        NoteListController::destroyShared();
        ExpenseListController::destroyShared();
        InventoryListController::destroyShared();
        m_tank.reset();
        m_shell.reset();
    }
    /// Deleting activities counts as a change and is announced; deleting notes is neither.
    void deleting()
    {
        DeletionWitness witness;
        for (RecordListController *list :
             {static_cast<RecordListController *>(&ScheduleListController::sharedInstance()),
              static_cast<RecordListController *>(&NoteListController::sharedInstance())}) {
            present(*list, *m_shell);
            list->table()->selectRow(1);
            list->deleteSelected();
            QTRY_VERIFY(test::shownAlert());
            QVERIFY(test::pressAlertButton("defaultButton"));
            QTRY_COMPARE(list->table()->model()->rowCount(), 2);
            QCOMPARE(m_shell->changes, 1);
            QCOMPARE(witness.heard, QStringList{"feed"});
        }
    }

    void computedCells()
    {
        ScheduleData &activity = *m_tank->scheduleListArray().front();
        activity.setAutoReschedule(true);
        activity.nextDate = 7 * 86400;
        present(ScheduleListController::sharedInstance(), *m_shell);
        QTableView *schedule = ScheduleListController::sharedInstance().table();
        QCOMPARE(schedule->model()->index(0, 4).data().toString(),
                 schedule->model()->index(0, 1).data().toString().replace(QLatin1String("03"), QLatin1String("10")));
        QCOMPARE(schedule->model()->index(0, 3).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(schedule->model()->index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));

        for (const QString &category : {m_tank->expenseCategoryArray.first(), QStringLiteral("gone")}) {
            auto expense = std::make_shared<ExpenseData>(m_tank.get());
            expense->type = category;
            m_tank->expense()->appendRecord(expense);
        }
        present(ExpenseListController::sharedInstance(), *m_shell);
        QCOMPARE(column(ExpenseListController::sharedInstance().table(), 3),
                 QStringList({m_tank->expenseCategoryArray.first(), text("ExpenseNoneItem")}));
    }

private:
    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
};

BRINEMARK_TEST(QApplication, TestJournalTables)
#include "tst_journal_tables.moc"
