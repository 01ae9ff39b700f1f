// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionLog.h"
#include "model/KeyAccess.h"
#include "support/AlertDriver.h"
#include "support/DataRow.h"
#include "support/TestProgram.h"

#include <QPushButton>

using namespace brinemark;
using namespace brinemark::test;

class TestConditionEditing : public QObject, protected ConditionLog
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void editing_data()
    {
        test::columns<int, QVariant, QVariant, bool>("column", "value", "stored", "taken");
        const QDateTime day(QDate(2025, 6, 1), QTime(0, 0));
        row("a number", int(Ph), QVariant(8.25), QVariant(8.25F), true);
        row("the same again", int(Ph), QVariant(7.0), QVariant(7.0F), true);
        row("a whole number", int(Calcium), QVariant(420.0), QVariant(420), true);
        row("a date", int(Date), QVariant(day), QVariant(day), true);
        row("nothing", int(Ph), QVariant(), QVariant(7.0F), false);
        row("no date", int(Date), QVariant(QDateTime()), QVariant(QDateTime(QDate(2026, 1, 1), QTime(9, 0))), false);
    }
    void editing()
    {
        QFETCH(int, column);
        QFETCH(QVariant, value);
        QFETCH(bool, taken);
        const auto record = m_tank->condition()->recordAt(0);
        const QStringView key = conditionKey(column);
        const QVariant before = valueForKey(*record, key);
        QCOMPARE(table()->model()->setData(table()->model()->index(0, column), value), taken);
        QTEST(valueForKey(*record, key), "stored");
        QCOMPARE(m_shell->changes, taken ? 1 : 0);
        QCOMPARE(m_shell->undo.count(), taken ? 1 : 0);
        if (!taken)
            return;
        QCOMPARE(m_shell->undo.undoText(), QStringLiteral("ConditionUndo"));
        m_shell->undo.undo();
        QCOMPARE(valueForKey(*record, key), before);
        QCOMPARE(m_shell->changes, 0);
        m_shell->undo.redo();
        QTEST(valueForKey(*record, key), "stored");
        QCOMPARE(m_shell->changes, -1); // both directions count down
        QCOMPARE(log().selectedRecords(), std::vector{record});
        QVERIFY(table()->hasFocus());
        QCOMPARE(m_shell->undo.count(), 1);
    }

    void undoReachesItsTank()
    {
        edit(0, Ph, 9);
        const auto record = m_tank->condition()->recordAt(0);
        m_shell->appendTank(makeTank(2));
        present(log(), *m_shell);
        QCOMPARE(m_tank->condition()->indexOf(record.get()), 4); // the sort ran when the tank was left
        m_shell->undo.undo();
        QCOMPARE(m_tank->condition()->indexOf(record.get()), 0);
        QCOMPARE(table()->model()->rowCount(), 2);
        QVERIFY(!log().hasSelectedRow());

        // Undoing an edit of a deleted record, or of a record of a removed tank, only beeps.
        m_shell->undo.redo();
        m_tank->condition()->removeEveryOccurrence(record.get());
        m_shell->undo.undo();
        QCOMPARE(m_shell->beeps, 1);
        QCOMPARE(m_shell->undo.count(), 0); // the step was removed
        edit(0, Ph, 9);
        m_shell->tanks.removeAt(1);
        m_shell->current = nullptr;
        log().updateDisplay();
        m_shell->undo.undo();
        QCOMPARE(m_shell->beeps, 2);
    }

    void theFirstEntry()
    {
        m_shell->appendTank(makeTank(0));
        log().updateDisplay();
        QTest::mouseClick(log().view()->findChild<QPushButton *>(QStringLiteral("emptyStateButton")), Qt::LeftButton);
        QVERIFY(editor() && editor()->hasFocus());
        type(number(8));
        clickCell(table(), 0, Ammonia); // commits the editor
        QCOMPARE(column(table(), Ph), QStringList{number(8)});
        press(Qt::Key_Space);
        QVERIFY(editor());
        type(number(1));
        m_shell->current = m_tank.get();
        log().updateDisplay(); // stores the typed text
        QCOMPARE(m_shell->tanks.at(1)->conditionListArray().front()->ammonia, 1.0F);
    }

    void newEntry_data()
    {
        QTest::addColumn<bool>("silenced");
        row("silenced", true);
        row("told first", false);
    }
    void newEntry()
    {
        QFETCH(bool, silenced);
        if (!silenced)
            AlertPanelDontAskAgain::clearValueForIdentifier(notTestedIdentifier);
        table()->setFocus();
        press(Qt::Key_Return);
        QCOMPARE(m_tank->condition()->count(), 6);
        QCOMPARE(m_shell->changes, 1);
        QCOMPARE(m_shell->undo.count(), 0);
        QCOMPARE(selectedRows(table()), QList<int>{0}); // untested values sort first
        QCOMPARE(log().rowNeedsSort(), 0);
        if (!silenced) {
            QTRY_VERIFY(shownAlert());
            QVERIFY(!editor());
            QVERIFY(pressAlertButton("defaultButton"));
        }
        QTRY_VERIFY(editor() && editor()->hasFocus());
        QCOMPARE(table()->currentIndex(), table()->model()->index(0, Ph));
        type(number(8.1));
        press(Qt::Key_Tab);
        QTRY_VERIFY(editor() && table()->currentIndex().column() == Ammonia);
        type(number(0.25));
        press(Qt::Key_Return);
        QTRY_VERIFY(!editor());
        const auto &record = static_cast<ConditionData &>(*m_tank->condition()->recordAt(0));
        QCOMPARE(record.ph, 8.1F);
        QCOMPARE(record.ammonia, 0.25F);
        press(Qt::Key_Return); // without an open editor, Return adds an entry
        QCOMPARE(m_tank->condition()->count(), 7);
    }

    void tabbing()
    {
        table()->horizontalHeader()->moveSection(Calcium, 0); // calcium, date, pH, ammonia
        clickCell(table(), 1, Calcium);
        press(Qt::Key_F2);
        QVERIFY(editor());
        type(QStringLiteral("380"));
        press(Qt::Key_Tab); // skips the date
        QCOMPARE(table()->currentIndex(), table()->model()->index(1, Ph));
        press(Qt::Key_Tab); // an unedited cell adds no undo step
        QCOMPARE(m_shell->undo.count(), 1);
        QCOMPARE(table()->currentIndex(), table()->model()->index(1, Ammonia));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(table()->currentIndex(), table()->model()->index(1, Ph));
        type(number(9));
        press(Qt::Key_Escape);
        QVERIFY(!editor());
        QCOMPARE(m_shell->undo.count(), 1);
        clickCell(table(), 1, Ammonia);
        type(QStringLiteral("3")); // typing starts editing
        QVERIFY(editor());
        press(Qt::Key_Tab); // from the last column
        QTRY_VERIFY(!editor());
        QVERIFY(table()->hasFocus());
        QCOMPARE(selectedRows(table()), QList<int>{1});
        const auto &record = static_cast<ConditionData &>(*m_tank->condition()->recordAt(1));
        QCOMPARE(record.calcium, 380);
        QCOMPARE(record.ammonia, 3.0F);
        QCOMPARE(record.ph, 7.1F);
    }

    void warnsAndGoesOn_data()
    {
        test::columns<double, bool>("value", "warns");
        row("too high", 9.0, true);
        row("within", 7.5, false);
        row("not tested", -1.0, false);
    }
    void warnsAndGoesOn()
    {
        TankData &target = *m_tank->phData();
        target.warningOn = target.deviationOn = true;
        target.preferredValue = 8;
        target.deviationValue = 0.5;
        QFETCH(double, value);
        QFETCH(bool, warns);
        clickCell(table(), 1, Ph);
        press(Qt::Key_F2);
        if (value < 0)
            press(Qt::Key_Backspace);
        else
            type(number(value));
        press(Qt::Key_Tab);
        QCOMPARE(shownAlert() != nullptr, warns);
        QCOMPARE(table()->currentIndex(), table()->model()->index(1, Ammonia));
        if (warns) {
            QCOMPARE(m_shell->undo.count(), 1); // stored before the alert opens
            QCOMPARE(shownAlert()->title(), fillPlaceholders(text("HighValueTitle"), {text("Ph")}));
            QVERIFY(!shownAlert()->button(AlertAlternate));
            QVERIFY(!editor());
            QVERIFY(pressAlertButton("defaultButton"));
        }
        QTRY_VERIFY(editor() && editor()->hasFocus()); // in the cell after the edited one
        QCOMPARE(m_shell->undo.count(), 1);
    }

    void datesComeFromTheCalendar_data()
    {
        // key: 0 for a click
        test::columns<int, bool>("key", "opens");
        row("click", 0, true);
        row("F2", int(Qt::Key_F2), true);
        row("space", int(Qt::Key_Space), true);
    }
    void datesComeFromTheCalendar()
    {
        QFETCH(int, key);
        QFETCH(bool, opens);
        CalendarController &calendar = CalendarController::sharedInstance();
        if (key == 0) {
            clickCell(table(), 1, Date, Qt::ControlModifier);
            QVERIFY(!calendar.isOpen()); // Ctrl+click only selects
            clickCell(table(), 1, Date);
        } else {
            table()->setCurrentIndex(table()->model()->index(1, Date));
            QTest::keyClick(table(), Qt::Key(key));
        }
        QCOMPARE(calendar.isOpen(), opens);
        QVERIFY(!editor());
        if (!opens)
            return;
        QCOMPARE(calendar.columnIdentifier(), QStringLiteral("date"));
        QTest::mousePress(table()->horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 5});
        QVERIFY(!calendar.isOpen()); // closed without storing
        QCOMPARE(m_shell->changes, 0);
    }
    void aChosenDateIsAnEdit()
    {
        m_tank->condition()->setSortIdentifier(QStringLiteral("date"));
        clickCell(table(), 1, Date);
        CalendarController &calendar = CalendarController::sharedInstance();
        QVERIFY(calendar.isOpen());
        press(Qt::Key_PageDown); // a month later
        press(Qt::Key_Return);
        QTRY_VERIFY(!calendar.isOpen());
        const auto &record = static_cast<ConditionData &>(*m_tank->condition()->recordAt(1));
        QCOMPARE(record.date, QDateTime(QDate(2026, 2, 2), QTime(9, 0)));
        QCOMPARE(m_shell->undo.count(), 1);
        QCOMPARE(log().rowNeedsSort(), 1);
        QVERIFY(!shownAlert());
    }
};

BRINEMARK_TEST(QApplication, TestConditionEditing)
#include "tst_condition_editing.moc"
