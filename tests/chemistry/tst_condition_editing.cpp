// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionLog.h"
#include "model/KeyAccess.h"
#include "support/AlertDriver.h"
#include "support/TestProgram.h"

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
        const auto [column, value, taken] = fetch<int, QVariant, bool>("column", "value", "taken");
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

    void newEntry_data()
    {
        columns<bool, bool>("silenced", "typable");
        row("silenced", true, true);
        row("told first", false, true);
        row("told, dates only", false, false);
    }
    void newEntry()
    {
        const auto [silenced, typable] = fetch<bool, bool>("silenced", "typable");
        if (!silenced)
            AlertPanelDontAskAgain::clearValueForIdentifier(notTestedIdentifier);
        for (const int tag : typable ? QList<int>() : QList<int>{22, 23, 29}) // all but the date
            log().toogleConditionColumn(tag);
        m_shell->changes = 0;
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
        if (!typable)
            return;
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
        clickCell(table(), 1, Calcium); // stores as well
        QVERIFY(!editor());
        clickCell(table(), 1, Ammonia);
        press(Qt::Key_F2);
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
        row("the same again", 7.1, false);
    }
    void warnsAndGoesOn()
    {
        TankData &target = *m_tank->phData();
        target.warningOn = target.deviationOn = true;
        target.preferredValue = 8;
        target.deviationValue = 0.5;
        const auto [value, warns] = fetch<double, bool>("value", "warns");
        clickCell(table(), 1, Ph);
        press(Qt::Key_F2);
        if (value < 0)
            press(Qt::Key_Backspace);
        else
            type(number(value));
        press(Qt::Key_Tab);
        QCOMPARE(static_cast<ConditionData &>(*m_tank->condition()->recordAt(1)).ph, float(value));
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

    /// While a warning is open, neither a menu nor the editor of a new entry opens behind it.
    void nothingOpensBehindAWarning()
    {
        m_tank->phData()->warningOn = true;
        clickCell(table(), 1, Ph);
        press(Qt::Key_F2);
        type(number(9));
        const QPoint place = table()->visualRect(table()->model()->index(3, Ph)).center();
        QContextMenuEvent ask(QContextMenuEvent::Keyboard, place, table()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(table()->viewport(), &ask);
        QTRY_VERIFY(shownAlert());
        QVERIFY(!QApplication::activePopupWidget());
        log().newEntry();
        QVERIFY(!editor());
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(editor() && editor()->hasFocus());
        QCOMPARE(table()->currentIndex().row(), selectedRows(table()).value(0));
    }

    void datesComeFromTheCalendar_data()
    {
        // key: 0 for a click
        test::columns<int, bool>("key", "opens");
        row("click", 0, true);
        row("F2", int(Qt::Key_F2), true);
        row("space", int(Qt::Key_Space), true);
        row("a letter", int(Qt::Key_A), false);
    }
    void datesComeFromTheCalendar()
    {
        const auto [key, opens] = fetch<int, bool>("key", "opens");
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
};

BRINEMARK_TEST(QApplication, TestConditionEditing)
#include "tst_condition_editing.moc"
