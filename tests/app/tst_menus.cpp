// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/commands/CommandDispatch.h"
#include "app/menus/MainMenuBar.h"
#include "app/tree/TankOutlineView.h"
#include "app/window/MainSelection.h"
#include "support/AppFixture.h"
#include "ui/MainViewController.h"
#include "ui/lists/RecordTableView.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QSet>
#include <QStackedWidget>
#include <QToolButton>
#include <QUndoStack>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// The state of a window; each flag is a word, such as "tank" or "edited".
MenuState stateOf(MainView view, MainView selectedIn, const QStringList &flags)
{
    MenuState state;
    state.view = view;
    state.listHasSelectedRow[qint32(selectedIn)] = selectedIn != MainView::None;
    state.hasCurrentTank = flags.contains("tank");
    state.windowEdited = flags.contains("edited");
    state.documentHasPath = flags.contains("path");
    state.toolbarVisible = flags.contains("toolbar");
    state.calculatorVisible = flags.contains("calculator");
    state.overdueNoticeVisible = flags.contains("overdue");
    state.selectedRowExpandable = flags.contains("open") || flags.contains("closed");
    state.selectedRowExpanded = flags.contains("open");
    state.waterTests = flags.contains("tests") ? 2 : 1;
    if (flags.contains("up") || flags.contains("down"))
        state.sortAscending = flags.contains("up");
    state.hasRecentFiles = flags.contains("recent");
    state.canUndo = flags.contains("undo");
    state.canRedo = flags.contains("redo");
    state.treeHasFocus = flags.contains("tree");
    return state;
}

/// The items of the menus, those of submenus included.
QList<QAction *> itemsOf(const QList<QAction *> &menus)
{
    QList<QAction *> items;
    for (const QAction *menu : menus) {
        for (QAction *action : menu->menu()->actions()) {
            if (action->menu())
                items << itemsOf({action});
            else if (!action->isSeparator())
                items << action;
        }
    }
    return items;
}

/// Opens the menu that holds the choices of a command, and returns those.
QList<QAction *> choicesOf(Command command, MainMenuBar &bar)
{
    QAction *none = bar.action(command);
    auto *menu = qobject_cast<QMenu *>(none->associatedObjects().value(0));
    Q_EMIT menu->aboutToShow();
    return menu->actions().mid(0, menu->actions().indexOf(none));
}

QStringList titlesOf(const QList<QAction *> &items)
{
    return listOf(items, [](const QAction *item) { return item->text().remove('&'); });
}

} // namespace

class TestMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validation_data()
    {
        using namespace menutag;
        using V = MainView;
        using Tags = QList<int>;
        // selectedIn: the view whose list has a selected row; enabled: of the items with a rule, the others always are
        columns<MainView, MainView, QString, QList<int>>("view", "selectedIn", "flags", "enabled");
        row("nothing open", V::None, V::None, "", Tags{});
        row("current tank", V::Tank, V::None, "tank", Tags{NeedsTank});
        row("closed row", V::Tank, V::None, "tank closed", Tags{NeedsTank, Expand});
        row("open row", V::LivestockGroup, V::None, "tank open", Tags{NeedsTank, Collapse});
        row("untitled, edited", V::None, V::None, "edited", Tags{Save});
        row("titled, clean", V::None, V::None, "path", Tags{});
        row("titled, edited", V::None, V::None, "path edited", Tags{Save, Revert});
        row("one fish", V::LivestockItem, V::None, "tank", Tags{NeedsTank});
        struct {
            const char *name;
            MainView view;
            Tags always;
            int selected;
        } const journals[] = {
            {"schedule", V::Schedule, {NeedsTank, NewActivity}, ScheduleSelected},
            {"notes", V::Notes, {NeedsTank, NewNote}, NoteSelected},
            {"conditions", V::Conditions, {NeedsTank, NewWaterTest, ConditionColumns}, ConditionSelected},
            {"inventory", V::Inventory, {NeedsTank, NewInventory}, InventorySelected},
            {"expenses", V::Expenses, {NeedsTank, NewExpense}, ExpenseSelected}};
        for (const auto &journal : journals) {
            row(journal.name, journal.view, V::None, "tank", journal.always);
            row(QByteArray(journal.name) + ", selected", journal.view, journal.view, "tank",
                journal.always + Tags{journal.selected});
        }
        // The rules of the lists ask the list, not the view on screen.
        row("notes selected, elsewhere", V::Tank, V::Notes, "tank", Tags{NeedsTank, NoteSelected});
        row("two tests", V::Conditions, V::None, "tank tests",
            Tags{NeedsTank, NewWaterTest, ConditionColumns, TwoWaterTests});
        row("two tests, elsewhere", V::Tank, V::None, "tank tests", Tags{NeedsTank});
        row("sorted up", V::Notes, V::None, "tank up", Tags{NeedsTank, NewNote, SortBy, SortAscending, SortDescending});
        row("sorted down", V::None, V::None, "down", Tags{SortBy, SortAscending, SortDescending});
        row("recent files", V::None, V::None, "recent", Tags{ClearRecent});
        row("undo", V::Tank, V::None, "tank undo", Tags{NeedsTank, Undo});
        row("redo", V::Tank, V::None, "tank redo", Tags{NeedsTank, Redo});
        row("undo in the tree", V::Tank, V::None, "tank undo redo tree", Tags{NeedsTank, Redo});
        row("windows shown", V::None, V::None, "toolbar calculator overdue", Tags{});
    }

    void validation()
    {
        using namespace menutag;
        const auto [view, selectedIn, flags, enabled] =
            fetch<MainView, MainView, QString, QList<int>>("view", "selectedIn", "flags", "enabled");
        const MenuState state = stateOf(view, selectedIn, flags.split(' '));
        using Tags = QList<int>;
        const Tags withRule = Tags{Expand, Collapse, NeedsTank, NewWaterTest, NewActivity, NewInventory, NewNote} +
                              Tags{NewExpense, Save, Revert, Undo, Redo, ConditionColumns, SortBy, SortAscending} +
                              Tags{SortDescending, ClearRecent, TwoWaterTests, InventorySelected, NoteSelected} +
                              Tags{ScheduleSelected, ConditionSelected, ExpenseSelected};
        for (const int tag : withRule)
            QVERIFY2(menuItemState(tag, state).enabled == enabled.contains(tag), QByteArray::number(tag));
        for (const int untagged : {0, 99, -1})
            QVERIFY(menuItemState(untagged, state).enabled && !menuItemState(untagged, state).title);
        for (const auto &[tag, flag] : {std::pair(SortAscending, "up"), std::pair(SortDescending, "down")})
            QCOMPARE(menuItemState(tag, state).checked, std::optional(flags.contains(flag)));
        const std::map<int, std::pair<const char *, const char *>> titled{
            {Toolbar, {"toolbar", "Toolbar"}},
            {Calculator, {"calculator", "CalculatorWindow"}},
            {OverdueNotice, {"overdue", "NotificationWindow"}}};
        for (const auto &[tag, title] : titled) {
            const MenuItemState item = menuItemState(tag, state);
            QVERIFY(item.enabled && item.title);
            QCOMPARE(QByteArray(item.title->key),
                     QByteArray(flags.contains(title.first) ? "Hide" : "Show") + title.second);
        }
    }

    void toolbarAndDelete()
    {
        const QStringList items{"newTank", "newFish", "newPlant", "newInvert", "newCoral",
                                "convert", "note",    "delete",   "print"};
        for (const QString &item : items) {
            QCOMPARE(toolbarItemEnabled(item, false, true), item == "newTank" || item == "convert");
            QVERIFY(toolbarItemEnabled(item, true, true));
            QCOMPARE(toolbarItemEnabled(item, true, false), item != "delete");
        }
        for (const bool selected : {false, true}) {
            for (const MainView view :
                 {MainView::None, MainView::Tank, MainView::LivestockItem, MainView(mainViewCount), MainView(-1)})
                QVERIFY(canDelete(view, selected));
            QVERIFY(!canDelete(MainView::LivestockGroup, selected));
            for (const MainView view :
                 {MainView::Schedule, MainView::Notes, MainView::Conditions, MainView::Inventory, MainView::Expenses})
                QCOMPARE(canDelete(view, selected), selected);
        }
    }

    void everyItemHasATitleAndAShortcutOfItsOwn()
    {
        QStringList english;
        for (const char *language : {"en", "de"}) {
            setTextLanguages({language});
            const MainMenuBar bar;
            QStringList titles;
            QSet<QKeySequence> keys;
            for (const QAction *item : itemsOf(bar.actions())) {
                QVERIFY(!item->text().isEmpty());
                // A text that equals its key was not found in the table.
                QVERIFY2(item->text() != item->objectName() || item->objectName() == "Condition Columns...",
                         qPrintable(item->text()));
                for (const QKeySequence &key : item->shortcuts()) {
                    QVERIFY2(!keys.contains(key), qPrintable(item->objectName() + ' ' + key.toString()));
                    keys << key;
                }
                titles << item->text();
            }
            for (const CommandRow &row : CommandDispatch::table())
                QVERIFY(titles.contains(bar.action(row.command)->text()));
            QCOMPARE(std::size_t(titles.size()), CommandDispatch::table().size());
            QCOMPARE(QSet<QString>(titles.begin(), titles.end()).size(), titles.size());
            if (english.isEmpty())
                english = titles;
            else
                QVERIFY(english != titles);
        }
        setTextLanguages({"en"});
    }

    void menuBarFollowsTheDocument()
    {
        Program program;
        program.start(program.copyOf(testFile("every-field.xml")));
        MainMenuBar &menus = program.window().menus();
        const auto enabled = [&](Command command) { return menus.action(command)->isEnabled(); };
        program.window().helpButton()->setFocus();
        QVERIFY(!enabled(Command::Save) && !enabled(Command::Revert) && !enabled(Command::Undo) &&
                !enabled(Command::Redo));
        QVERIFY(program.renameFirstTank("Edited"));
        QVERIFY(enabled(Command::Save) && enabled(Command::Revert) && enabled(Command::Undo) &&
                !enabled(Command::Redo));
        menus.action(Command::Undo)->trigger();
        QVERIFY(!program.tankNames().contains("Edited"));
        QVERIFY(!enabled(Command::Undo) && enabled(Command::Redo));
        menus.action(Command::Redo)->trigger();
        QVERIFY(program.tankNames().contains("Edited"));
        menus.action(Command::Save)->trigger();
        QVERIFY(!enabled(Command::Save) && !enabled(Command::Revert));
        QVERIFY(enabled(Command::Undo));
        program.tree().tankList()->setFocus();
        QTRY_VERIFY(!enabled(Command::Undo));

        menus.action(Command::NewFile)->trigger();
        program.settle();
        QVERIFY(!enabled(Command::Undo) && !enabled(Command::Redo));
        QVERIFY(program.renameFirstTank("Edited"));
        QVERIFY(enabled(Command::Save) && !enabled(Command::Revert));
    }

    void menuBarFollowsTheTree()
    {
        Program program;
        program.start(testFile("every-field.xml"));
        MainMenuBar &menus = program.window().menus();
        const auto enabled = [&](Command command) { return menus.action(command)->isEnabled(); };
        TankListController &tree = program.tree();
        QVERIFY(tree.tankList()->currentIndex().isValid());
        tree.tankList()->collapseAll();
        tree.selectRow(0);
        QVERIFY(enabled(Command::Expand) && !enabled(Command::Collapse) && enabled(Command::NewFish));
        menus.action(Command::Expand)->trigger();
        QVERIFY(!enabled(Command::Expand) && enabled(Command::Collapse));
        QVERIFY(enabled(Command::Delete));

        tree.select(TreeItem(*tree.list().at(0)->note()));
        QVERIFY(enabled(Command::NewNote) && !enabled(Command::NewWaterTest) && !enabled(Command::Expand));
        QVERIFY(!enabled(Command::Delete)); // the list has no selected row
        QVERIFY(!program.window().deleteButton()->isEnabled());
        QVERIFY(!program.controller().validateToolbarItem("delete"));
    }

    void everyListIsSortedAndDeletedFromByTheMenus_data()
    {
        test::columns<ContainerKind>("kind");
        for (const ContainerKind kind : {ContainerKind::Condition, ContainerKind::Schedule, ContainerKind::Inventory,
                                         ContainerKind::Expense, ContainerKind::Note})
            row(traitsOf(kind).nameKey.key, kind);
    }

    void everyListIsSortedAndDeletedFromByTheMenus()
    {
        QFETCH(ContainerKind, kind);
        Program program;
        program.start(program.copyOf(testFile("every-field.xml")));
        MainMenuBar &menus = program.window().menus();
        QVERIFY(!menus.action(Command::SortAscending)->isEnabled());
        QVERIFY(choicesOf(Command::SortBy, menus).isEmpty());
        Container &list = *program.tree().list().at(0)->container(kind);
        program.controller().selectInTree(list);
        const std::vector<SortColumn> columns = program.controller().selection().view()->sortColumns();
        list.setSortIdentifier(columns.front().identifier);
        const QList<QAction *> choices = choicesOf(Command::SortBy, menus);
        QSet<QString> mnemonics;
        QStringList titles;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            titles << columns[i].title;
            QCOMPARE(choices[qsizetype(i)]->isChecked(), columns[i].identifier == list.sortIdentifier());
            mnemonics << choices[qsizetype(i)]->text().section('&', 1).left(1).toLower();
        }
        QCOMPARE(titlesOf(choices), titles);
        QCOMPARE(mnemonics.size(), choices.size());
        const QWidget &page = *program.window().mainView().currentWidget();
        auto *table = page.findChild<RecordTableView *>();
        const auto count = program.document().changeCount();
        choices.last()->trigger();
        QCOMPARE(list.sortIdentifier(), columns.back().identifier);
        menus.action(Command::SortDescending)->trigger();
        QVERIFY(!list.sortAscending() && menus.action(Command::SortDescending)->isChecked());
        QCOMPARE(program.document().changeCount(), count + 2);
        menus.action(Command::SortDescending)->trigger(); // as it is already
        QCOMPARE(program.document().changeCount(), count + 2);
        QVERIFY(menus.action(Command::SortDescending)->isChecked());
        choices.first()->trigger();
        const int sorted = table->horizontalHeader()->sortIndicatorSection();
        QCOMPARE(table->model()->headerData(sorted, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
                 fillPlaceholders(text("SortedDescending"), {titles.first()}));

        const QList<QMenu *> listMenus{page.findChild<QToolButton *>("actionButton")->menu(),
                                       table->findChild<QMenu *>()};
        for (const bool selected : {false, true}) {
            if (selected)
                table->selectRow(0);
            QCOMPARE(menus.action(Command::Delete)->isEnabled(), selected);
            for (QMenu *menu : listMenus) {
                Q_EMIT menu->aboutToShow();
                for (const QAction *item : menu->actions())
                    QVERIFY(item->text() != text("DeleteTitle") || item->isEnabled() == selected);
                QVERIFY(titlesOf(menu->actions()).contains(text("DeleteTitle")));
            }
        }
    }

    void openedMenuObeysTheSameRules()
    {
        Program program;
        program.start(testFile("every-field.xml"));
        MainMenuBar &menus = program.window().menus();
        program.tree().tankList()->collapseAll();
        program.tree().selectRow(0);
        menus.action(Command::Expand)->trigger();
        program.tree().selectRow(1);
        program.tree().tankList()->setFocus();
        for (QAction *menu : menus.actions())
            QMetaObject::invokeMethod(menu->menu(), "aboutToShow");
        for (const Command command : {Command::Delete, Command::Cut, Command::Copy, Command::SelectAll})
            QVERIFY(!menus.action(command)->isEnabled());
    }

    void withoutATank()
    {
        Program program;
        program.start(testFile("every-field.xml"));
        program.tree().forgetRows();
        program.controller().orderFrontAndCheckModified();
        QVERIFY(!program.controller().validateToolbarItem("newFish"));
        QVERIFY(program.controller().validateToolbarItem("newTank"));
        const MainMenuBar &menus = program.window().menus();
        QVERIFY(menus.action(Command::NewTank)->isEnabled());
        for (const Command command : {Command::NewFish, Command::Expand, Command::Collapse, Command::Delete})
            QVERIFY(!menus.action(command)->isEnabled());
    }

    void editCommands()
    {
        Program program;
        program.start(testFile("every-field.xml"));
        QVERIFY(QTest::qWaitForWindowActive(&program.window()));
        MainMenuBar &menus = program.window().menus();
        const auto enabled = [&] {
            QString letters;
            for (const auto &[command, letter] : {std::pair(Command::Cut, 'x'), std::pair(Command::Copy, 'c'),
                                                  std::pair(Command::Paste, 'v'), std::pair(Command::SelectAll, 'a')}) {
                if (menus.action(command)->isEnabled())
                    letters += QLatin1Char(letter);
            }
            return letters;
        };
        QLineEdit field("scallop", program.window().centralWidget());
        field.show();
        field.setFocus();
        QTRY_COMPARE(enabled(), "xcva");
        menus.action(Command::SelectAll)->trigger();
        QCOMPARE(field.selectedText(), "scallop");
        menus.action(Command::Cut)->trigger();
        QCOMPARE(field.text(), QString());
        QCOMPARE(QGuiApplication::clipboard()->text(), "scallop");
        menus.action(Command::Paste)->trigger();
        QCOMPARE(field.text(), "scallop");

        // In the tree only livestock can be copied, and paste is enabled after that.
        const auto &tank = program.tree().list().at(0);
        program.tree().tankList()->setFocus();
        program.tree().select(TreeItem(*tank));
        QTRY_COMPARE(enabled(), "");
        const auto fish = tank->fishListArray().at(0);
        program.tree().select(TreeItem(*fish));
        QCOMPARE(enabled(), "c");
        menus.setFocus(Qt::MenuBarFocusReason); // opening a menu by keyboard does the same
        QTRY_VERIFY(menus.hasFocus());
        QCOMPARE(enabled(), "c");
        menus.action(Command::Copy)->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), fish->name);
        QCOMPARE(enabled(), "cv");
        const auto count = tank->fishListArray().size();
        menus.action(Command::Paste)->trigger();
        QCOMPARE(tank->fishListArray().size(), count + 1);
        QCOMPARE(field.text(), "scallop");

        program.window().helpButton()->setFocus();
        QTRY_COMPARE(enabled(), "");
    }
};

BRINEMARK_APP_TEST(TestMenus)
#include "tst_menus.moc"
