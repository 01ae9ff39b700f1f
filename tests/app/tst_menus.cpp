// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/MainMenuBar.h"
#include "app/tree/TankOutlineView.h"
#include "base/text/Texts.h"
#include "support/AppFixture.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QToolButton>
#include <QUndoStack>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// What a state sets beyond an empty window. Views by their constants.
struct StateOf {
    int view = 0;
    int selectedIn = 0; ///< the view whose list has a selected row
    QString flags;      ///< words: tank edited path toolbar calculator overdue open closed undo redo tree

    [[nodiscard]] MenuState state() const
    {
        const auto has = [this](const char *word) { return flags.split(' ').contains(QLatin1String(word)); };
        MenuState state;
        state.view = MainView(view);
        state.listHasSelectedRow[selectedIn] = selectedIn != 0;
        state.hasCurrentTank = has("tank");
        state.windowEdited = has("edited");
        state.documentHasPath = has("path");
        state.toolbarVisible = has("toolbar");
        state.calculatorVisible = has("calculator");
        state.overdueNoticeVisible = has("overdue");
        state.selectedRowExpandable = has("open") || has("closed");
        state.selectedRowExpanded = has("open");
        state.canUndo = has("undo");
        state.canRedo = has("redo");
        state.treeHasFocus = has("tree");
        return state;
    }
};

const QList<int> &allTags()
{
    static const QList<int> tags{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 36, 37, 38, 0, 99, -1};
    return tags;
}

QList<QAction *> itemsOf(const MainMenuBar &bar)
{
    QList<QAction *> items;
    for (const QAction *menu : bar.actions()) {
        for (QAction *action : menu->menu()->actions()) {
            if (!action->isSeparator())
                items << action;
        }
    }
    return items;
}

} // namespace

class TestMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validation_data()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<int>("selectedIn");
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QList<int>>("enabled"); // of those with a rule; the others always are
        using Tags = QList<int>;
        QTest::newRow("nothing open") << 0 << 0 << "" << Tags{};
        QTest::newRow("current tank") << 1 << 0 << "tank" << Tags{5};
        QTest::newRow("closed row") << 1 << 0 << "tank closed" << Tags{5, 3};
        QTest::newRow("open row") << 2 << 0 << "tank open" << Tags{5, 4};
        QTest::newRow("untitled, edited") << 0 << 0 << "edited" << Tags{10};
        QTest::newRow("titled, clean") << 0 << 0 << "path" << Tags{};
        QTest::newRow("titled, edited") << 0 << 0 << "path edited" << Tags{10, 15};
        QTest::newRow("one fish") << 3 << 0 << "tank" << Tags{5};
        QTest::newRow("schedule") << 4 << 0 << "tank" << Tags{5, 7};
        QTest::newRow("schedule, selected") << 4 << 4 << "tank" << Tags{5, 7, 13};
        QTest::newRow("notes") << 5 << 0 << "tank" << Tags{5, 9};
        QTest::newRow("notes, selected") << 5 << 5 << "tank" << Tags{5, 9, 12};
        QTest::newRow("conditions") << 6 << 0 << "tank" << Tags{5, 6, 38};
        QTest::newRow("conditions, selected") << 6 << 6 << "tank" << Tags{5, 6, 38, 14};
        QTest::newRow("inventory") << 7 << 0 << "tank" << Tags{5, 8};
        QTest::newRow("inventory, selected") << 7 << 7 << "tank" << Tags{5, 8, 11};
        QTest::newRow("expenses") << 8 << 0 << "tank" << Tags{5, 37};
        QTest::newRow("expenses, selected") << 8 << 8 << "tank" << Tags{5, 37, 16};
        // The rules of the tables look at them, not at the view on screen.
        QTest::newRow("notes selected, elsewhere") << 1 << 5 << "tank" << Tags{5, 12};
        QTest::newRow("undo") << 1 << 0 << "tank undo" << Tags{5, 17};
        QTest::newRow("redo") << 1 << 0 << "tank redo" << Tags{5, 18};
        QTest::newRow("undo in the tree") << 1 << 0 << "tank undo redo tree" << Tags{5, 18};
        QTest::newRow("windows shown") << 0 << 0 << "toolbar calculator overdue" << Tags{};
    }

    void validation()
    {
        QFETCH(int, view);
        QFETCH(int, selectedIn);
        QFETCH(QString, flags);
        QFETCH(QList<int>, enabled);
        const MenuState state = StateOf{view, selectedIn, flags}.state();
        static const QList<int> always{1, 2, 36, 0, 99, -1};
        for (const int tag : allTags()) {
            const MenuItemState item = menuItemState(tag, state);
            QVERIFY2(item.enabled == (always.contains(tag) || enabled.contains(tag)), QByteArray::number(tag));
            const std::map<int, std::pair<const char *, const char *>> titles{{1, {"toolbar", "Toolbar"}},
                                                                              {2, {"calculator", "CalculatorWindow"}},
                                                                              {36, {"overdue", "NotificationWindow"}}};
            const auto title = titles.find(tag);
            QCOMPARE(item.title.has_value(), title != titles.end());
            if (title != titles.end())
                QCOMPARE(QByteArray(item.title->key),
                         QByteArray(flags.contains(title->second.first) ? "Hide" : "Show") + title->second.second);
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
            for (const int view : {0, 1, 3, 9, -1})
                QVERIFY(canDelete(MainView(view), selected));
            QVERIFY(!canDelete(MainView::LivestockGroup, selected));
            for (const int view : {4, 5, 6, 7, 8})
                QCOMPARE(canDelete(MainView(view), selected), selected);
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
            for (const QAction *item : itemsOf(bar)) {
                QVERIFY(!item->text().isEmpty());
                // Texts of the menus are never their keys; one that is was not found.
                QVERIFY2(item->text() != item->objectName() || item->objectName() == "Condition Columns...",
                         qPrintable(item->text()));
                for (const QKeySequence &key : item->shortcuts()) {
                    QVERIFY2(!keys.contains(key), qPrintable(item->objectName() + ' ' + key.toString()));
                    keys << key;
                }
                titles << item->text();
            }
            QVERIFY(titles.size() > 35);
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

        // By row below the tank: what it offers to add, and whether it can be deleted or opened.
        const std::vector<std::pair<int, std::optional<Command>>> rows{{1, {}},
                                                                       {2, {}},
                                                                       {3, {}},
                                                                       {4, {}},
                                                                       {5, Command::NewWaterTest},
                                                                       {6, Command::NewActivity},
                                                                       {7, Command::NewInventory},
                                                                       {8, Command::NewExpense},
                                                                       {9, Command::NewNote}};
        for (const auto &[row, offered] : rows) {
            tree.selectRow(row);
            for (const Command command : {Command::NewWaterTest, Command::NewActivity, Command::NewInventory,
                                          Command::NewExpense, Command::NewNote})
                QCOMPARE(enabled(command), offered == command);
            QCOMPARE(enabled(Command::ConditionColumns), row == 5);
            QCOMPARE(enabled(Command::Expand), row <= 4);
            QVERIFY(!enabled(Command::Delete)); // a group, or a list without a selected row
            QVERIFY(!program.window().deleteButton()->isEnabled());
            QVERIFY(!program.controller().validateToolbarItem("delete"));
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
        for (const char *item : {"newFish", "newPlant", "newInvert", "newCoral", "delete", "note", "print"})
            QVERIFY2(!program.controller().validateToolbarItem(item), item);
        QVERIFY(program.controller().validateToolbarItem("newTank") &&
                program.controller().validateToolbarItem("convert"));
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

        // In the tree: only livestock can be copied, and pasted once it was.
        const auto &tank = program.tree().list().at(0);
        program.tree().tankList()->setFocus();
        program.tree().select(TreeItem(*tank));
        QTRY_COMPARE(enabled(), "");
        const auto fish = tank->fishListArray().at(0);
        program.tree().select(TreeItem(*fish));
        QCOMPARE(enabled(), "c");
        menus.setFocus(Qt::MenuBarFocusReason); // as opening a menu by keyboard does
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
