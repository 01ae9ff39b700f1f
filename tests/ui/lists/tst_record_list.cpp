// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/AlertDriver.h"
#include "support/TestProgram.h"
#include "ui/lists/SmallList.h"

#include <QSignalSpy>
#include <QToolButton>

using namespace brinemark;
using namespace brinemark::test;

/// What every list does with its rows: sorting, selecting, adding, deleting, following the model.
class TestRecordList : public QObject, protected SmallListOnScreen
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void aHeaderSorts()
    {
        const auto indicator = [&] {
            const QHeaderView *header = table()->horizontalHeader();
            return std::pair(header->sortIndicatorSection(), header->sortIndicatorOrder());
        };
        record(0).setComplete(true);
        QCOMPARE(indicator(), std::pair(int(Activity), Qt::AscendingOrder));
        for (const int row : {0, 1})
            clickCell(table(), row, Activity, Qt::ControlModifier);
        clickHeader(table(), Activity); // the sorted column turns round
        QCOMPARE(activities(), "edcba");
        QCOMPARE(indicator(), std::pair(int(Activity), Qt::DescendingOrder));
        QCOMPARE(selectedRows(table()), QList<int>({3, 4})); // "b" and "a", as before
        QVERIFY(table()->hasFocus());
        clickHeader(table(), Done); // another column keeps the direction
        QCOMPARE(activities(), "aedcb");
        QCOMPARE(indicator(), std::pair(int(Done), Qt::DescendingOrder));
        QCOMPARE(selectedRows(table()), QList<int>({0, 4}));
        QCOMPARE(m_tank->schedule()->sortIdentifier(), "complete");
        clickHeader(table(), Done);
        QCOMPARE(activities(), "edcba");
        QVERIFY(m_tank->schedule()->sortAscending());
        QCOMPARE(m_shell->changes, 3);
    }

    void aNewEntry()
    {
        const QSignalSpy selection(m_list.get(), &MainViewController::selectionChanged);
        rename(4, "A"); // waits for its re-sort
        button<QToolButton>("newButton")->click();
        QCOMPARE(m_tank->schedule()->count(), 6);
        const int row = selectedRows(table()).value(0, -1);
        QCOMPARE(record(row).activity, text("NewScheduleItem"));
        QCOMPARE(m_list->rowNeedsSort(), row);
        QCOMPARE(m_shell->changes, 2);
        QCOMPARE(m_shell->undo.count(), 1); // the renaming: adding cannot be undone
        QVERIFY(m_shell->deleteEnabled && selection.count() > 0);
        QVERIFY(editor() && editor()->hasFocus());
        QCOMPARE(editor()->text(), text("NewScheduleItem"));
        type("aa");
        press(Qt::Key_Return);
        QTRY_VERIFY(!editor());
        QCOMPARE(record(row).activity, "aa");
        clickCell(table(), 0, Activity);
        QCOMPARE(selectedRows(table()), QList<int>{2}); // sorted now, still selected
    }

    void deleting_data()
    {
        test::columns<QByteArray, QString, QStringList>("answer", "left", "told");
        row("confirmed", QByteArray("defaultButton"), QString("bd"), QStringList({"a", "c", "e"}));
        row("cancelled", QByteArray("alternateButton"), QString("abcde"), QStringList());
    }
    void deleting()
    {
        const auto [answer, told] = fetch<QByteArray, QStringList>("answer", "told");
        auto *deleteButton = button<QToolButton>("deleteButton");
        QVERIFY(!deleteButton->isEnabled());
        QTest::keyClick(table(), Qt::Key_Delete);
        QVERIFY(!shownAlert()); // nothing is selected
        for (const int row : {0, 2, 4})
            clickCell(table(), row, Activity, Qt::ControlModifier);
        QVERIFY(deleteButton->isEnabled() && m_shell->deleteEnabled);
        deleteButton->click();
        QTRY_VERIFY(shownAlert());
        QCOMPARE(shownAlert()->title(), formatText(text("StandardWarning"), {text("ScheduleItem")}));
        QVERIFY(pressAlertButton(answer.constData()));
        QTRY_COMPARE(m_shell->ordersFront, 1);
        QTEST(activities(), "left");
        QCOMPARE(m_list->deleted, told);
        QCOMPARE(m_shell->changes, told.isEmpty() ? 0 : 1);
        QCOMPARE(m_list->hasSelectedRow(), told.isEmpty());
        QCOMPARE(deleteButton->isEnabled(), told.isEmpty());
        QCOMPARE(m_shell->deleteEnabled, told.isEmpty());
        QCOMPARE(m_shell->undo.count(), 0);
    }

    void followsTheModel()
    {
        table()->selectRow(1);
        m_tank->insertInNoteListArray(std::make_shared<NoteData>(m_tank.get()), 0);
        QCOMPARE(selectedRows(table()), QList<int>{1}); // another list's record
        auto first = std::make_shared<ScheduleData>(m_tank.get());
        first->activity = QStringLiteral("0");
        m_tank->insertInScheduleListArray(first, 5);
        QCOMPARE(activities(), "0abcde");
        QVERIFY(!m_list->hasSelectedRow());
        table()->selectRow(2);
        m_tank->removeFromScheduleListArrayAtIndex(0);
        QCOMPARE(activities(), "abcde");
        Tank &other = showAnotherTank(2);
        table()->selectRow(1);
        m_tank->insertInScheduleListArray(first, 5); // of a tank that is not on screen
        QCOMPARE(activities(), "ab");
        QCOMPARE(selectedRows(table()), QList<int>{1});
        other.schedule()->clear();
        m_list->updateDisplay();
        QVERIFY(button<QPushButton>("emptyStateButton")->isVisible());
    }

    void withoutATank()
    {
        rename(0, "z");
        m_shell->current = nullptr;
        m_shell->tanks.clear();
        m_tank.reset();
        table()->viewport()->repaint(); // the tank is closed while its records are on screen
        m_list->updateDisplay();
        QCOMPARE(table()->model()->rowCount(), 0);
        m_list->newEntry();
        clickHeader(table(), Due);
        m_list->sortAndSelect();
        m_shell->undo.undo();
        QCOMPARE(m_beeps, 1);
        QCOMPARE(m_shell->changes, 1);
        QVERIFY(!button<QPushButton>("emptyStateButton")->isVisible()); // there is nothing to add to
    }

    void anEmptyListOffersTheFirstEntry()
    {
        showAnotherTank(0);
        auto *add = button<QPushButton>("emptyStateButton");
        QVERIFY(add->isVisible());
        add->click();
        QVERIFY(!add->isVisible());
        QCOMPARE(m_shell->current->schedule()->count(), 1);
        QVERIFY(editor() && editor()->hasFocus());
    }

    void selectsARecord()
    {
        table()->selectAll();
        QVERIFY(m_list->selectRecord(record(3)));
        QCOMPARE(selectedRows(table()), QList<int>{3});
        QVERIFY(!m_list->selectRecord(ScheduleData(m_tank.get())));
        QCOMPARE(m_list->selectedRecords(), std::vector{m_tank->schedule()->recordAt(3)});
    }
};

BRINEMARK_TEST(QApplication, TestRecordList)
#include "tst_record_list.moc"
