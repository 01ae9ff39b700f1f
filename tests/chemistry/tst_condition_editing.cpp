#include "chemistry/views/ConditionListController.h"
#include "model/KeyAccess.h"
#include "support/AlertDriver.h"
#include "support/DataRow.h"
#include "support/ListDriver.h"
#include "support/RunTest.h"
#include "ui/AlertPanelDontAskAgain.h"
#include "ui/Alerts.h"
#include "ui/calendar/CalendarController.h"

#include <QAbstractItemModelTester>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

using namespace brinemark;
using test::clickCell;
using test::press;
using test::row;
using test::type;

namespace
{

enum Column { Date, Ph, Ammonia, Calcium };
const QString notTestedIdentifier = QStringLiteral("DontShowAgainNotTested");

/// pH 7.0, 7.1 ... one a day, the oldest first.
std::shared_ptr<Tank> makeTank(int tests)
{
    auto tank = std::make_shared<Tank>(QStringLiteral("Reef"));
    for (int i = 0; i < tests; ++i) {
        auto record = std::make_shared<ConditionData>(tank.get());
        record->date = QDateTime(QDate(2026, 1, 1 + i), QTime(9, 0));
        record->ph = 7.0F + float(i) / 10;
        tank->condition()->appendRecord(record);
    }
    tank->condition()->setColumnInfoArray({{"date", 0}, {"ph", 0}, {"ammonia", 0}, {"calcium", 0}});
    tank->condition()->setSortIdentifier(QStringLiteral("ph"));
    for (const ParameterTraits &parameter : parameterTable)
        tank->target(parameter.parameter)->warningOn = false;
    return tank;
}

QString number(double value)
{
    return QLocale().toString(value, 'f', 2);
}

} // namespace

class TestConditionEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        AlertPanelDontAskAgain::setValue(1, notTestedIdentifier);
        m_shell = std::make_unique<test::RecordingShell>();
        m_shell->appendTank(makeTank(5));
        m_tank = m_shell->tanks.at(0);
        setBeepHandler([this] { ++m_beeps; });
        m_beeps = 0;
        test::present(log(), *m_shell);
        m_shell->window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_shell->window));
        m_tester = std::make_unique<QAbstractItemModelTester>(table()->model());
    }
    void cleanup()
    {
        m_tester.reset();
        ConditionListController::destroyShared();
        CalendarController::destroyShared();
        m_shell.reset();
        m_tank.reset();
        setBeepHandler({});
    }

    void editing_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("taken");
        const QDateTime day(QDate(2025, 6, 1), QTime(0, 0));
        row("a number", int(Ph), QVariant(8.25), QVariant(8.25F), true);
        row("the same again", int(Ph), QVariant(7.0), QVariant(7.0F), true);
        row("a whole number", int(Calcium), QVariant(420.0), QVariant(420), true);
        row("not tested", int(Ph), QVariant(-1.0), QVariant(-1.0F), true);
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
        test::present(log(), *m_shell);
        QCOMPARE(m_tank->condition()->indexOf(record.get()), 4); // left in order
        m_shell->undo.undo();
        QCOMPARE(m_tank->condition()->indexOf(record.get()), 0);
        QCOMPARE(table()->model()->rowCount(), 2);
        QVERIFY(!log().hasSelectedRow());

        // Neither a record that was deleted nor one whose tank has gone can be brought back.
        m_shell->undo.redo();
        m_tank->condition()->removeEveryOccurrence(record.get());
        m_shell->undo.undo();
        QCOMPARE(m_beeps, 1);
        QCOMPARE(m_shell->undo.count(), 0); // the step is gone
        edit(0, Ph, 9);
        m_shell->tanks.removeAt(1);
        m_shell->current = nullptr;
        log().updateDisplay();
        m_shell->undo.undo();
        QCOMPARE(m_beeps, 2);
    }

    void sortsWhenTheSelectionMoves_data()
    {
        QTest::addColumn<std::function<void(QTableView *)>>("move");
        QTest::addColumn<QList<int>>("selected");
        using Move = std::function<void(QTableView *)>;
        const QList<int> itself{4};
        row("click", Move([](QTableView *table) { clickCell(table, 2, Ammonia); }), itself);
        row("click and extend", Move([](QTableView *table) { clickCell(table, 2, Ph, Qt::ShiftModifier); }), itself);
        row("click to add", Move([](QTableView *table) { clickCell(table, 2, Ph, Qt::ControlModifier); }), itself);
        row("down", Move([](QTableView *table) { QTest::keyClick(table, Qt::Key_Down); }), itself);
        row("end", Move([](QTableView *table) { QTest::keyClick(table, Qt::Key_End, Qt::ControlModifier); }), itself);
        row("select all", Move([](QTableView *table) { table->selectAll(); }), itself);
        row("select row", Move([](QTableView *table) { table->selectRow(3); }), itself);
        row("drag", Move([](QTableView *table) {
                const auto middle = [&](int row) { return table->visualRect(table->model()->index(row, 1)).center(); };
                QTest::mousePress(table->viewport(), Qt::LeftButton, {}, middle(1));
                QTest::mouseMove(table->viewport(), middle(2));
                QTest::mouseMove(table->viewport(), middle(3));
                QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, middle(3));
            }),
            itself);
    }
    void sortsWhenTheSelectionMoves()
    {
        using Move = std::function<void(QTableView *)>;
        QFETCH(Move, move);
        clickCell(table(), 0, Ph);
        edit(0, Ph, 9);
        QCOMPARE(log().rowNeedsSort(), 0);
        edit(0, Ammonia, 1); // not the sort column, and one is pending
        clickCell(table(), 0, Ammonia);
        QTest::keyClick(table(), Qt::Key_Right);
        QCOMPARE(log().rowNeedsSort(), 0); // between the cells of the row nothing moves
        QCOMPARE(test::column(table(), Ph).first(), number(9));
        move(table());
        QCOMPARE(test::column(table(), Ph).last(), number(9));
        QTEST(test::selectedRows(table()), "selected");
        QCOMPARE(log().rowNeedsSort(), -1);
        clickCell(table(), 2, Ph); // and from now on as usual
        QCOMPARE(test::selectedRows(table()), QList<int>{2});
    }

    void whereNothingMovesTheSelectionGoes()
    {
        clickCell(table(), 1, Ph);
        edit(1, Ph, 7.15);
        clickCell(table(), 3, Ph);
        QCOMPARE(test::selectedRows(table()), QList<int>{3});
        QCOMPARE(log().rowNeedsSort(), -1);
    }

    void nothingPendingSurvives_data()
    {
        QTest::addColumn<QString>("event");
        for (const char *event : {"another tank", "deleted", "header", "removed elsewhere", "file closed"})
            QTest::newRow(event) << QString::fromLatin1(event);
    }
    void nothingPendingSurvives()
    {
        QFETCH(QString, event);
        clickCell(table(), 0, Ph);
        edit(0, Ph, 9);
        if (event == u"another tank") {
            m_shell->appendTank(makeTank(3));
            log().updateDisplay();
        } else if (event == u"deleted") {
            log().deleteSelected();
            QTRY_VERIFY(test::shownAlert());
            QVERIFY(test::pressAlertButton("defaultButton"));
        } else if (event == u"header") {
            test::clickHeader(table(), Date);
            QCOMPARE(test::selectedRows(table()), QList<int>{0});
        } else if (event == u"removed elsewhere") {
            m_tank->removeFromConditionListArrayAtIndex(0);
        } else {
            m_shell->current = nullptr;
            m_tank.reset();
            m_shell->tanks.clear();
            log().updateDisplay();
        }
        QCOMPARE(log().rowNeedsSort(), -1);
        table()->selectRow(1);
        QCOMPARE(test::selectedRows(table()).size(), table()->model()->rowCount() > 0 ? 1 : 0);
    }

    void theFirstEntry()
    {
        m_shell->appendTank(makeTank(0));
        log().updateDisplay();
        QTest::mouseClick(log().view()->findChild<QPushButton *>(QStringLiteral("emptyStateButton")), Qt::LeftButton);
        QVERIFY(editor() && editor()->hasFocus());
        type(number(8));
        clickCell(table(), 0, Ammonia); // which commits
        QCOMPARE(test::column(table(), Ph), QStringList{number(8)});
        press(Qt::Key_Space);
        QVERIFY(editor());
        type(number(1));
        m_shell->current = m_tank.get();
        log().updateDisplay(); // nothing typed is lost
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
        QCOMPARE(test::selectedRows(table()), QList<int>{0}); // not tested sorts first
        QCOMPARE(log().rowNeedsSort(), 0);
        if (!silenced) {
            QTRY_VERIFY(test::shownAlert());
            QVERIFY(!editor());
            QVERIFY(test::pressAlertButton("defaultButton"));
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
        press(Qt::Key_Return); // which, with nothing being typed, is the next entry
        QCOMPARE(m_tank->condition()->count(), 7);
    }

    void tabbing()
    {
        table()->horizontalHeader()->moveSection(Calcium, 0); // calcium, date, pH, ammonia
        clickCell(table(), 1, Calcium);
        press(Qt::Key_F2);
        QVERIFY(editor());
        type(QStringLiteral("380"));
        press(Qt::Key_Tab); // past the date
        QCOMPARE(table()->currentIndex(), table()->model()->index(1, Ph));
        press(Qt::Key_Tab); // an untouched cell is no edit
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
        press(Qt::Key_Tab); // the last one
        QTRY_VERIFY(!editor());
        QVERIFY(table()->hasFocus());
        QCOMPARE(test::selectedRows(table()), QList<int>{1});
        const auto &record = static_cast<ConditionData &>(*m_tank->condition()->recordAt(1));
        QCOMPARE(record.calcium, 380);
        QCOMPARE(record.ammonia, 3.0F);
        QCOMPARE(record.ph, 7.1F);
    }

    void warnsAndGoesOn_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("warns");
        row("too high", 9.0, true);
        row("within", 7.5, false);
        row("not tested", -1.0, false);
        row("as before", 7.1, false);
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
        QCOMPARE(test::shownAlert() != nullptr, warns);
        QCOMPARE(table()->currentIndex(), table()->model()->index(1, Ammonia));
        if (warns) {
            QCOMPARE(m_shell->undo.count(), 1); // stored before anything is said
            QCOMPARE(test::shownAlert()->title(), fillPlaceholders(text("HighValueTitle"), {text("Ph")}));
            QVERIFY(!test::shownAlert()->button(AlertAlternate));
            QVERIFY(!editor());
            QVERIFY(test::pressAlertButton("defaultButton"));
        }
        QTRY_VERIFY(editor() && editor()->hasFocus()); // where the tab key went
        QCOMPARE(m_shell->undo.count(), 1);
    }

    void marks_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<CellMark::Shape>("shape");
        QTest::addColumn<bool>("says");
        row("low", 7.0F, CellMark::Shape::Below, true);
        row("on the limit", 7.5F, CellMark::Shape::None, false);
        row("high", 8.6F, CellMark::Shape::Above, true);
        row("not tested", -1.0F, CellMark::Shape::None, false);
    }
    void marks()
    {
        QFETCH(float, value);
        TankData &target = *m_tank->phData();
        target.warningOn = target.deviationOn = true;
        target.preferredValue = 8;
        target.deviationValue = 0.5;
        m_tank->condition()->records().front()->ph = value;
        const QModelIndex cell = table()->model()->index(0, Ph);
        const CellMark mark = cell.data(CellMarkRole).value<CellMark>();
        QTEST(mark.shape, "shape");
        QFETCH(bool, says);
        QCOMPARE(!cell.data(Qt::ToolTipRole).toString().isEmpty(), says);
        QCOMPARE(cell.data(Qt::ForegroundRole).isValid(), says || value < 0);
        QCOMPARE(cell.data().toString(), value < 0 ? text("NotTested") : number(double(value)));
    }

    void menu_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("enabled");
        row("none", 0, false);
        row("one", 1, false);
        row("two", 2, true);
    }
    void menu()
    {
        QFETCH(int, rows);
        QFETCH(bool, enabled);
        m_shell->appendTank(makeTank(rows));
        log().updateDisplay();
        auto *button = log().view()->findChild<QToolButton *>(QStringLiteral("actionButton"));
        QVERIFY(button->isVisible());
        auto *context = table()->findChild<QMenu *>(QStringLiteral("conditionCM"));
        for (QMenu *menu : {button->menu(), context}) {
            Q_EMIT menu->aboutToShow();
            QStringList titles;
            for (const QAction *action : menu->actions()) {
                titles << action->text();
                const bool needsTwo = action->text() == text("Graph") || action->text() == text("Export");
                if (!action->isSeparator())
                    QCOMPARE(action->isEnabled(), enabled || !needsTwo);
            }
            QCOMPARE(titles, QStringList({text("Graph"), text("Export"), QString(), text("NewTitle"),
                                          text("DeleteTitle"), QString(), text("Condition Columns...")}));
            menu->actions().at(4)->trigger();
        }
        QCOMPARE(m_shell->deletesAsked, 2);
    }

    void datesComeFromTheCalendar_data()
    {
        QTest::addColumn<int>("key"); ///< 0 for a click
        QTest::addColumn<bool>("opens");
        row("click", 0, true);
        row("F2", int(Qt::Key_F2), true);
        row("space", int(Qt::Key_Space), true);
        row("a letter", int(Qt::Key_A), false);
    }
    void datesComeFromTheCalendar()
    {
        QFETCH(int, key);
        QFETCH(bool, opens);
        CalendarController &calendar = CalendarController::sharedInstance();
        if (key == 0) {
            clickCell(table(), 1, Date, Qt::ControlModifier);
            QVERIFY(!calendar.isOpen()); // that only selects
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
        QVERIFY(!calendar.isOpen()); // without saving
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
        QVERIFY(!test::shownAlert());
    }

    void deletesScatteredRows()
    {
        for (const int row : {0, 2, 4})
            clickCell(table(), row, Ph, Qt::ControlModifier);
        QTest::keyClick(table(), Qt::Key_Delete);
        QTRY_VERIFY(test::shownAlert());
        QVERIFY(test::pressAlertButton("defaultButton"));
        QCOMPARE(test::column(table(), Ph), QStringList({number(7.1), number(7.3)}));
        QCOMPARE(m_shell->undo.count(), 0);
    }

private:
    static ConditionListController &log() { return ConditionListController::sharedInstance(); }
    static QTableView *table() { return log().table(); }
    /// The one that is typed into; null when nothing is edited.
    static QWidget *editor() { return table()->indexWidget(table()->currentIndex()); }
    static QStringView conditionKey(int column)
    {
        constexpr std::array keys{QStringView(u"date"), QStringView(u"ph"), QStringView(u"ammonia"),
                                  QStringView(u"calcium")};
        return keys.at(std::size_t(column));
    }
    static void edit(int row, int column, double value)
    {
        QVERIFY(table()->model()->setData(table()->model()->index(row, column), value));
    }

    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    int m_beeps = 0;
};

int main(int argc, char **argv)
{
    return brinemark::test::run<QApplication, TestConditionEditing>(argc, argv);
}

#include "tst_condition_editing.moc"
