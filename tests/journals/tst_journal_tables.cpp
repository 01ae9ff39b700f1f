// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/ExpenseListController.h"
#include "journals/views/InventoryListController.h"
#include "journals/views/NoteListController.h"
#include "journals/views/ScheduleListController.h"
#include "support/AlertDriver.h"
#include "support/DataRow.h"
#include "support/ListDriver.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableView>
#include <QToolButton>

using namespace brinemark;
using test::clickHeader;
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

    void headerClicksSort()
    {
        auto &controller = NoteListController::sharedInstance();
        present(controller, *m_shell);
        QTableView *table = controller.table();
        const QAbstractItemModelTester tester(table->model());
        Note &list = *m_tank->note();
        QVERIFY(list.sortAscending());

        QVERIFY(controller.selectRecord(*list.recordAt(0))); // "Water change"
        clickHeader(table, 1);                               // another column keeps the direction
        QCOMPARE(column(table, 1), QStringList({"Clean", "feed", "Water change"}));
        QCOMPARE(table->horizontalHeader()->sortIndicatorSection(), 1);
        QCOMPARE(table->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
        clickHeader(table, 1); // the sorted column flips it
        QCOMPARE(column(table, 1), QStringList({"Water change", "feed", "Clean"}));
        QCOMPARE(table->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
        clickHeader(table, 0); // keeps the direction again
        QCOMPARE(column(table, 1), QStringList({"Water change", "Clean", "feed"}));
        QCOMPARE(list.sortIdentifier(), QStringLiteral("date"));
        QVERIFY(!list.sortAscending());
        QCOMPARE(m_shell->changes, 3);
        QCOMPARE(controller.selectedRecords().size(), 1U);
        QCOMPARE(static_cast<NoteData &>(*controller.selectedRecords().front()).note, QStringLiteral("Water change"));
    }

    void newEntrySelectsIt()
    {
        auto &controller = ScheduleListController::sharedInstance();
        present(controller, *m_shell);
        const QAbstractItemModelTester tester(controller.table()->model());
        QSignalSpy selection(&controller, &MainViewController::selectionChanged);
        m_tank->schedule()->setSortIdentifier(QStringLiteral("activity"));
        QTest::mouseClick(controller.view()->findChild<QToolButton *>(QStringLiteral("newButton")), Qt::LeftButton);
        QCOMPARE(m_tank->schedule()->count(), 4);
        QCOMPARE(m_shell->changes, 1);
        QVERIFY(m_shell->deleteEnabled);
        QVERIFY(selection.count() > 0);
        const auto selected = controller.selectedRecords();
        QCOMPARE(selected.size(), 1U);
        QCOMPARE(static_cast<ScheduleData &>(*selected.front()).activity, text("NewScheduleItem"));
        QCOMPARE(m_tank->schedule()->indexOf(selected.front().get()), 2); // sorted in, before "Water change"
    }

    void deleteAsks_data()
    {
        test::columns<bool, QString, int, int>("schedule", "button", "left", "changes");
        QTest::newRow("schedule, yes") << true << "defaultButton" << 1 << 1;
        QTest::newRow("schedule, cancel") << true << "alternateButton" << 3 << 0;
        QTest::newRow("notes, yes") << false << "defaultButton" << 1 << 0; // deleting notes counts no change
        QTest::newRow("notes, cancel") << false << "alternateButton" << 3 << 0;
    }
    void deleteAsks()
    {
        QFETCH(bool, schedule);
        RecordListController &controller =
            schedule ? static_cast<RecordListController &>(ScheduleListController::sharedInstance())
                     : NoteListController::sharedInstance();
        present(controller, *m_shell);
        const QAbstractItemModelTester tester(controller.table()->model());
        DeletionWitness witness;
        auto *deleteButton = controller.view()->findChild<QToolButton *>(QStringLiteral("deleteButton"));
        QVERIFY(!deleteButton->isEnabled());
        QTest::keyClick(controller.table(), Qt::Key_Delete); // without a selection no alert opens
        QVERIFY(!test::shownAlert());

        QItemSelectionModel *selection = controller.table()->selectionModel();
        for (const int row : {0, 2})
            selection->select(controller.table()->model()->index(row, 0),
                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QVERIFY(deleteButton->isEnabled());
        QTest::keyClick(controller.table(), Qt::Key_Delete);
        QTRY_VERIFY(test::shownAlert());
        QCOMPARE(test::shownAlert()->title(),
                 formatText(text("StandardWarning"), {schedule ? text("ScheduleItem") : text("NoteItem")}));
        QFETCH(QString, button);
        QVERIFY(test::pressAlertButton(button.toLatin1().constData()));
        QTRY_COMPARE(m_shell->ordersFront, 1);
        const bool deleted = button == QLatin1String("defaultButton");
        const Container *list = m_tank->container(schedule ? ContainerKind::Schedule : ContainerKind::Note);
        QTEST(list->count(), "left");
        QTEST(m_shell->changes, "changes");
        QCOMPARE(witness.heard, schedule && deleted ? QStringList({"Water change", "Clean"}) : QStringList());
        QCOMPARE(controller.hasSelectedRow(), !deleted);
        if (deleted)
            QCOMPARE(controller.table()->model()->index(0, schedule ? 2 : 1).data().toString(), QStringLiteral("feed"));
    }

    void followsTheModel()
    {
        auto &controller = NoteListController::sharedInstance();
        present(controller, *m_shell);
        const QAbstractItemModelTester tester(controller.table()->model());
        controller.table()->selectRow(1);
        auto note = std::make_shared<NoteData>(m_tank.get());
        note->date = QDateTime(QDate(2020, 1, 1), QTime(0, 0));
        note->note = QStringLiteral("oldest");
        m_tank->insertInNoteListArray(note, 3);
        QCOMPARE(column(controller.table(), 1).first(), QStringLiteral("oldest"));
        QVERIFY(!controller.hasSelectedRow());
        m_tank->removeFromNoteListArrayAtIndex(0);
        QCOMPARE(controller.table()->model()->rowCount(), 3);

        // The tank is deleted while its notes are on screen.
        m_shell->current = nullptr;
        m_shell->tanks.clear();
        m_tank.reset();
        controller.table()->viewport()->repaint();
        controller.updateDisplay();
        QCOMPARE(controller.table()->model()->rowCount(), 0);
        QTest::mouseClick(controller.view()->findChild<QToolButton *>(QStringLiteral("newButton")), Qt::LeftButton);
        QCOMPARE(m_shell->changes, 0);
    }

    void emptyTableOffersTheFirst()
    {
        auto &controller = InventoryListController::sharedInstance();
        present(controller, *m_shell);
        auto *button = controller.view()->findChild<QPushButton *>(QStringLiteral("emptyStateButton"));
        QVERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!button->isVisible());
        QCOMPARE(m_tank->inventory()->count(), 1);
        QCOMPARE(controller.table()->model()->index(0, 1).data().toString(), QStringLiteral("1"));
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
