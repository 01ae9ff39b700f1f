// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/AlertDriver.h"
#include "support/TestProgram.h"
#include "ui/lists/SmallList.h"

using namespace brinemark;
using namespace brinemark::test;

using PressedKeys = QList<int>;

/// How every list's cells are edited: by typing, by a tick, from the calendar; what is an edit and what is none; undo.
class TestRecordEditing : public QObject, protected SmallListOnScreen
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void typing_data()
    {
        // keys: pressed after the typing; edited: empty for no edit and no undo step
        columns<SmallListColumn, QString, PressedKeys, QString, QString>("column", "typed", "keys", "stored", "edited");
        const PressedKeys enter{Qt::Key_Return};
        const PressedKeys next{Qt::Key_Tab};
        const PressedKeys cleared{Qt::Key_Delete, Qt::Key_Return};
        row("a text", Activity, QString("feed"), enter, QString("feed"), QString("activity*"));
        row("a text, Tab", Activity, QString("feed"), next, QString("feed"), QString("activity*"));
        row("a text, Shift+Tab", Activity, QString("feed"), PressedKeys{Qt::Key_Backtab}, QString("feed"),
            QString("activity*"));
        row("the same text", Activity, QString("a"), enter, QString("a"), QString("activity"));
        row("nothing typed", Activity, QString(), enter, QString("a"), QString());
        row("nothing typed, Tab", Activity, QString(), next, QString("a"), QString());
        row("cleared", Activity, QString(), cleared, QString("a"), QString());
        row("only blanks", Activity, QString("  "), enter, QString("a"), QString());
        row("Escape", Activity, QString("feed"), PressedKeys{Qt::Key_Escape}, QString("a"), QString());
        row("a number", Interval, QString("86400"), enter, QString("86400"), QString("nextDate*"));
        row("a number untouched", Interval, QString(), enter, QString("0"), QString());
        row("a number cleared", Interval, QString(), cleared, QString("0"), QString());
    }
    void typing()
    {
        const auto [column, typed, keys, edited] =
            fetch<SmallListColumn, QString, PressedKeys, QString>("column", "typed", "keys", "edited");
        record(0).setAutoReschedule(true);
        m_tank->schedule()->setSortIdentifier(QStringLiteral("date"));
        clickCell(table(), 0, Activity);
        table()->setCurrentIndex(cell(0, column));
        press(Qt::Key_F2);
        const auto *field = table()->findChild<QWidget *>(QStringLiteral("cellEditor"));
        QVERIFY(field && field->isAncestorOf(QApplication::focusWidget()) | (field == QApplication::focusWidget()));
        QCOMPARE(field->accessibleName(), table()->model()->headerData(column, Qt::Horizontal).toString());
        type(typed);
        for (const int key : keys)
            press(Qt::Key(key));
        table()->finishEditing();
        QTEST(column == Activity ? record(0).activity : QString::number(record(0).nextDate, 'f', 0), "stored");
        QCOMPARE(m_list->edited, edited.isEmpty() ? QStringList() : QStringList{edited});
        QCOMPARE(m_shell->undo.count(), edited.isEmpty() ? 0 : 1);
        QCOMPARE(m_shell->changes, edited.isEmpty() ? 0 : 1);
        QCOMPARE(m_list->rowNeedsSort(), -1); // none of these is the sort column
    }

    void keepsWhatIsTypedWhileTheModelChanges()
    {
        ScheduleData &edited = record(1);
        clickCell(table(), 1, Activity);
        press(Qt::Key_F2);
        type("half a wor");
        edited.activity = QStringLiteral("elsewhere");
        m_list->updateDisplay();
        QCOMPARE(editor()->text(), "half a wor");
        showAnotherTank(1); // commits first
        QCOMPARE(edited.activity, "half a wor");
    }

    void storesAnEditOnce()
    {
        clickCell(table(), 1, Activity);
        press(Qt::Key_F2);
        type("feed");
        for (int i = 0; i < 2; ++i) // Return commits, and the loss of the focus commits again
            table()->itemDelegate()->setModelData(editor(), table()->model(), table()->currentIndex());
        QCOMPARE(m_shell->undo.count(), 1);
    }

    void ticking()
    {
        QVERIFY(!table()->model()->setData(cell(2, Repeats), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(!record(2).autoReschedule());
        QVERIFY(cell(2, Done).flags().testFlag(Qt::ItemIsUserCheckable));
        QVERIFY(!cell(2, Done).flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(table()->model()->setData(cell(2, Done), Qt::Checked, Qt::CheckStateRole));
        QVERIFY(record(2).complete());
        QCOMPARE(m_list->edited, QStringList{"complete*"});
        m_shell->undo.undo();
        QVERIFY(!record(2).complete());
        record(2).setComplete(true); // elsewhere
        QCOMPARE(cell(2, Done).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    }

    void theRecordOfThePendingSortGetsSelected()
    {
        clickCell(table(), 3, Activity);
        rename(0, "z"); // not the selected row
        clickCell(table(), 1, Activity);
        QCOMPARE(activities(), "bcdez");
        QCOMPARE(selectedRows(table()), QList<int>{4});
    }

    /// A press that ends a pending re-sort hits another record than was aimed at. All that belongs to it is dropped.
    void aDroppedGesture_data()
    {
        test::columns<QString>("gesture");
        for (const char *gesture : {"click on a date", "double click", "right click", "drag"})
            QTest::newRow(gesture) << QString(gesture);
    }
    void aDroppedGesture()
    {
        QFETCH(QString, gesture);
        int menus = 0;
        table()->menuAsked = [&](const QPoint &) { ++menus; };
        const auto at = [&](int row, int column) { return table()->visualRect(cell(row, column)).center(); };
        clickCell(table(), 0, Activity);
        rename(0, "z");
        QWidget *viewport = table()->viewport();
        if (gesture == "click on a date") {
            clickCell(table(), 2, Due);
        } else if (gesture == "double click") {
            clickCell(table(), 2, Activity);
            QTest::mouseDClick(viewport, Qt::LeftButton, {}, at(2, Activity));
        } else if (gesture == "right click") {
            QTest::mousePress(viewport, Qt::RightButton, {}, at(2, Activity));
            QContextMenuEvent ask(QContextMenuEvent::Mouse, at(2, Activity), viewport->mapToGlobal(at(2, Activity)));
            QApplication::sendEvent(viewport, &ask);
            QTest::mouseRelease(viewport, Qt::RightButton, {}, at(2, Activity));
        } else {
            QTest::mousePress(viewport, Qt::LeftButton, {}, at(1, Activity));
            for (const int row : {2, 3})
                QTest::mouseMove(viewport, at(row, Activity));
            QTest::mouseRelease(viewport, Qt::LeftButton, {}, at(3, Activity));
        }
        QCOMPARE(activities(), "bcdez");
        QCOMPARE(selectedRows(table()), QList<int>{4}); // still "z"
        QTest::keyClicks(table(), QStringLiteral("x"));
        QVERIFY(!editor() && !CalendarController::sharedInstance().isOpen());
        QCOMPARE(menus, 0);
        QTest::keyClick(table(), Qt::Key_Up);
        QTest::keyClicks(table(), QStringLiteral("x"));
        QVERIFY(editor());
        QTest::keyClick(editor(), Qt::Key_Escape);

        clickCell(table(), 1, Activity); // the next gesture counts
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, at(1, Activity));
        QVERIFY(editor());
        QContextMenuEvent ask(QContextMenuEvent::Mouse, at(1, Activity), viewport->mapToGlobal(at(1, Activity)));
        QApplication::sendEvent(viewport, &ask);
        QCOMPARE(menus, 1);
    }

    void undo()
    {
        rename(0, "z");
        rename(1, "y");
        QCOMPARE(m_list->rowNeedsSort(), 0);
        QCOMPARE(activities(), "zycde"); // until the selection changes
        QCOMPARE(m_shell->undo.undoText(), "SmallUndo");
        m_shell->undo.undo();
        QCOMPARE(activities(), "bcdez");
        QCOMPARE(selectedRows(table()), QList<int>{0});
        m_shell->undo.undo();
        QCOMPARE(activities(), "abcde");
        m_shell->undo.redo();
        QCOMPARE(activities(), "bcdez");
        QCOMPARE(selectedRows(table()), QList<int>{4});
        QCOMPARE(m_shell->changes, -1); // two edits, and three steps that each take one off

        // The other tank's rows do not move.
        showAnotherTank(3);
        table()->selectRow(1);
        m_shell->undo.undo();
        QCOMPARE(record(0).activity, "a");
        QCOMPARE(selectedRows(table()), QList<int>{1});
        m_tank->schedule()->clear();
        m_shell->undo.redo();
        QCOMPARE(m_beeps, 1);               // the record is no longer in its list
        QCOMPARE(m_shell->undo.count(), 1); // the step is dropped
    }

    /// The calendar stores into the column that it was opened for, whichever comes first in the table.
    void theCalendar()
    {
        table()->horizontalHeader()->moveSection(Due, 3);
        m_tank->schedule()->setSortIdentifier(QStringLiteral("date"));
        clickCell(table(), 1, Due);
        CalendarController &calendar = CalendarController::sharedInstance();
        QVERIFY(calendar.isOpen());
        QCOMPARE(calendar.columnIdentifier(), "date");
        press(Qt::Key_PageDown);
        press(Qt::Key_Return);
        QTRY_VERIFY(!calendar.isOpen());
        QCOMPARE(record(1).date, QDateTime(QDate(2026, 2, 2), QTime(9, 0)));
        QVERIFY(!record(1).complete());
        QCOMPARE(m_list->edited, QStringList{"date"});
        QCOMPARE(m_list->rowNeedsSort(), 1);

        // A click that only ends the pending re-sort hits another record than was aimed at: it opens nothing.
        clickCell(table(), 3, Due);
        QVERIFY(!calendar.isOpen());
        QCOMPARE(selectedRows(table()), QList<int>{4});
        for (const int column : {Done, Activity})
            QVERIFY(!m_list->displayCalendar(cell(0, column)));
    }
};

BRINEMARK_TEST(QApplication, TestRecordEditing)
#include "tst_record_editing.moc"
