// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/commands/CommandDispatch.h"
#include "app/menus/MainMenuBar.h"
#include "app/toolbar/MainToolBar.h"
#include "app/tree/TankOutlineView.h"
#include "chemistry/views/ConditionListController.h"
#include "chemistry/views/GraphController.h"
#include "journals/views/NoteListController.h"
#include "livestock/views/FishDataController.h"
#include "model/LivestockData.h"
#include "support/AppFixture.h"
#include "ui/AlertPanelDontAskAgain.h"
#include "ui/MainView.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <QToolButton>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// The program with a tank that holds a record of every kind.
struct FullProgram : Program {
    FullProgram() { start(copyOf(testFile("every-field.xml"))); }
    static Tank &tank() { return *tree().list().at(0); }
    static ItemData &livestock(ContainerKind kind)
    {
        return static_cast<ItemData &>(*tank().container(kind)->recordAt(0));
    }
    /// The title of the view on screen.
    static QString title() { return window().mainView().currentWidget()->findChild<QLabel *>("viewTitle")->text(); }
};

/// The controls in a window that take the focus but have no name that a screen reader could say.
QStringList namelessControls(QWidget *window)
{
    QStringList nameless;
    for (QWidget *control : window->findChildren<QWidget *>()) {
        if (control->isVisible() && control->focusPolicy() != Qt::NoFocus &&
            QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
            nameless << QLatin1String(control->metaObject()->className()) + u' ' + control->objectName();
    }
    return nameless;
}

/// As the desktop shows it: with the name of the product, unless the title ends with it.
QString shownTitle(const QWidget &window)
{
    const QString product = QApplication::applicationDisplayName();
    return window.windowTitle().endsWith(product) ? window.windowTitle() : window.windowTitle() + product;
}

/// The page and the heading that the help window shows.
QString shownHelp()
{
    auto *window = awaitWindow<QWidget>("helpWindow");
    const QUrl page = window ? window->findChild<QTextBrowser *>("helpBrowser")->source() : QUrl();
    return QFileInfo(page.path()).baseName() + (page.hasFragment() ? u'#' + page.fragment() : QString());
}

/// Saves the item editor, when it is open.
void saveItemSheet()
{
    if (auto *sheet = shownWindow<QDialog>("itemSheet"))
        sheet->findChild<QPushButton *>("saveButton")->click();
}

} // namespace

// What each command does in the whole program, and what the selection in the tree means for it.

class TestCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWindowOpens_data()
    {
        test::columns<Command, QString, QString>("command", "window", "help"); // the page that F1 opens there
        row("print", Command::Print, "printDialog", "");
        row("preferences", Command::Preferences, "prefWindow", "preferences");
        row("new tank", Command::NewTank, "tankSheet", "conditions");
        row("columns", Command::ConditionColumns, "customColumnWindow", "conditions#condition-columns");
        row("graph", Command::Graph, "graphWindow", "conditions#graph");
        row("open", Command::OpenFile, "openPanel", "files");
        row("toolbar", Command::CustomiseToolbar, "toolbarCustomiseDialog", "preferences#toolbar");
        row("calculator", Command::ToggleCalculator, "convertWindow", "converter");
        row("overdue", Command::ToggleOverdue, "notePanel", "schedule#overdue");
        row("help", Command::Help, "helpWindow", "conditions");
        row("updates", Command::CheckForUpdates, "updateWindow", "");
        row("mailing list", Command::MailingList, "signupWindow", "");
        row("about", Command::About, "aboutPanel", "");
    }

    void aWindowOpens()
    {
        const auto [command, window, help] = fetch<Command, QString, QString>("command", "window", "help");
        FullProgram program;
        const auto overdue = std::make_shared<ScheduleData>(&program.tank());
        overdue->date = clock::now().addDays(-3);
        program.tank().scheduleListArray().push_back(overdue);
        program.controller().selectInTree(*program.tank().condition());
        program.settle();
        const QByteArray name = window.toLatin1();
        QVERIFY(!shownWindow<QWidget>(name));
        program.controller().performCommand(command);
        auto *shown = awaitWindow<QWidget>(name);
        QVERIFY(shown);
        if (command != Command::Print && command != Command::OpenFile) // the toolkit's own dialogs
            QCOMPARE(namelessControls(shown).join(", "), "");
        QCOMPARE(shownTitle(*shown).count(QApplication::applicationDisplayName()), 1);
        if (!help.isEmpty()) {
            QVERIFY(QTest::qWaitForWindowActive(shown));
            if (command != Command::Help)
                QTest::keyClick(shown->windowHandle(), Qt::Key_F1); // as the desktop sends it
            QCOMPARE(shownHelp(), help);
        }
        shown->close();
    }

    void helpShowsThePageOfTheView()
    {
        FullProgram program;
        const auto helpOfView = [&] {
            program.controller().performCommand(Command::Help);
            return shownHelp();
        };
        program.controller().selectInTree(program.tank());
        QStringList pages{helpOfView()};
        program.controller().selectInTree(program.livestock(ContainerKind::Plant));
        pages << helpOfView();
        for (Container *container : program.tank().tankItemsArray()) {
            program.controller().selectInTree(*container);
            pages << helpOfView();
        }
        QCOMPARE(pages.join(' '),
                 "tanks livestock#livestock-profile livestock livestock livestock livestock conditions "
                 "schedule inventory expenses notes");
        program.controller().changeView(MainView::None);
        QCOMPARE(helpOfView(), "start");
    }

    void everyControlOfAViewHasAName()
    {
        FullProgram program;
        program.controller().selectInTree(program.tank());
        QCOMPARE(namelessControls(&program.window()).join(", "), "");
        for (Container *container : program.tank().tankItemsArray()) {
            program.controller().selectInTree(*container);
            QCOMPARE(namelessControls(&program.window()).join(", "), "");
        }
        program.controller().selectInTree(program.livestock(ContainerKind::Fish));
        QCOMPARE(namelessControls(&program.window()).join(", "), "");
        QTest::keyClick(program.tree().tankList(), Qt::Key_Return); // opens the editor of the record
        auto *editor = awaitWindow("itemSheet");
        for (int page = 0; page < 3; ++page) {
            editor->findChild<QTabWidget *>()->setCurrentIndex(page);
            QCOMPARE(namelessControls(editor).join(", "), "");
        }
        editor->findChild<QPushButton *>("searchButton")->click();
        auto *search = awaitWindow("fishSearchPanel");
        QCOMPARE(namelessControls(search).join(", "), "");
        search->close();
        editor->close();
        GraphController::sharedInstance().display();
        auto *graph = awaitWindow<QWidget>("graphWindow");
        QVERIFY(graph);
        QCOMPARE(namelessControls(graph).join(", "), "");
        graph->findChild<QAbstractButton *>("drawButton")->click();
        QTRY_VERIFY(graph->findChild<QAbstractButton *>("printButton")->isVisible());
        QCOMPARE(namelessControls(graph).join(", "), "");
    }

    void aRecordIsAdded_data()
    {
        test::columns<Command, ContainerKind>("command", "kind");
        row("fish", Command::NewFish, ContainerKind::Fish);
        row("plant", Command::NewPlant, ContainerKind::Plant);
        row("invert", Command::NewInvert, ContainerKind::Invert);
        row("coral", Command::NewCoral, ContainerKind::Coral);
        row("water test", Command::NewWaterTest, ContainerKind::Condition);
        row("activity", Command::NewActivity, ContainerKind::Schedule);
        row("inventory", Command::NewInventory, ContainerKind::Inventory);
        row("expense", Command::NewExpense, ContainerKind::Expense);
        row("note", Command::NewNote, ContainerKind::Note);
    }

    void aRecordIsAdded()
    {
        const auto [command, kind] = fetch<Command, ContainerKind>("command", "kind");
        FullProgram program;
        Container &list = *program.tank().container(kind);
        program.controller().selectInTree(list);
        const int before = list.count();
        const AlertScript script; // dismisses the explanation that a new water test shows
        program.controller().performCommand(command);
        saveItemSheet();
        QCOMPARE(list.count(), before + 1);
        QVERIFY(program.document().isEdited());
        QCoreApplication::processEvents();
    }

    void steppingKeepsTheFocus()
    {
        FullProgram program;
        ItemData &first = program.livestock(ContainerKind::Fish);
        const auto second = std::make_shared<FishData>(QStringLiteral("Second"), &program.tank());
        program.tank().fish()->insertRecord(second, 1);
        program.controller().updateTree();
        program.controller().selectInTree(first);
        QWidget &view = *program.window().mainView().currentWidget();
        auto *profile = view.findChild<QWidget *>("profileField");
        profile->setFocus();
        view.findChild<QToolButton *>("nextButton")->click();
        QCOMPARE(program.tree().currentSelectedItem().record, second.get());
        QCOMPARE(FishDataController::sharedInstance().currentItem(), second.get());
        QVERIFY(profile->hasFocus());
    }

    void theViewShowsTheSelectedRow()
    {
        FullProgram program;
        for (const ContainerKind kind :
             {ContainerKind::Coral, ContainerKind::Fish, ContainerKind::Plant, ContainerKind::Invert}) {
            program.controller().selectInTree(program.livestock(kind));
            QCOMPARE(program.controller().currentView(), MainView::LivestockItem);
            QCOMPARE(FishDataController::sharedInstance().currentItem(), &program.livestock(kind));
            program.controller().selectInTree(*program.tank().container(kind));
            QCOMPARE(program.title(), program.tank().container(kind)->name());
        }
        const auto note = program.tank().noteListArray().at(0);
        program.controller().selectInTree(*note); // journal records have no row in the tree
        QCOMPARE(program.controller().currentView(), MainView::LivestockGroup);
    }

    void returnAddsAnEntry_data()
    {
        columns<ContainerKind, QString>("kind", "focus");
        row("tree, log", ContainerKind::Condition, QString("tankList"));
        row("tree, notes", ContainerKind::Note, QString("tankList"));
        row("empty log", ContainerKind::Condition, QString("emptyStateButton"));
        row("button", ContainerKind::Expense, QString("actionButton"));
    }

    void returnAddsAnEntry()
    {
        const auto [kind, focus] = fetch<ContainerKind, QString>("kind", "focus");
        FullProgram program;
        AlertPanelDontAskAgain::setValue(1, "DontShowAgainNotTested");
        Container &list = *program.tank().container(kind);
        if (focus == "emptyStateButton")
            list.clear();
        program.controller().selectInTree(list);
        program.window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&program.window()));
        const QWidget *place =
            focus == "tankList" ? &program.window() : program.window().mainView().currentWidget(); // views share names
        auto *widget = place->findChild<QWidget *>(focus);
        widget->setFocus();
        QVERIFY(widget->hasFocus());
        const int before = list.count();
        QTest::keyClick(widget, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(list.count(), before);
        QTest::keyClick(widget, Qt::Key_Return);
        QCOMPARE(list.count(), before + 1);
        if (kind != ContainerKind::Condition)
            return;
        // Return that finishes a value adds nothing.
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_VERIFY(qobject_cast<QTableView *>(QApplication::focusWidget()));
        QCOMPARE(list.count(), before + 1);
    }

    void aFileWithoutTanksOffersToAddOne()
    {
        Program program;
        program.start(testFile("minimal.xml"));
        QVERIFY(program.commands().openFile(QStringLiteral(BRINEMARK_TEST_DATA "/broken/only-attributes.xml")));
        auto *add = program.window().mainView().currentWidget()->findChild<QPushButton *>("emptyStateButton");
        QVERIFY(add && add->isVisible());
        add->click();
        QVERIFY(awaitWindow("tankSheet"));
    }

    /// A tank of the older form can come without lists: nothing is shown below its row until it holds a record.
    void aTankWithoutListsTakesEveryCommand()
    {
        for (const CommandRow &command : CommandDispatch::table()) {
            if (command.command == Command::Quit)
                continue; // the next pass ends the program
            AlertScript script;
            Program program;
            program.start(program.copyOf(testFile("older-seven.xml")));
            QVERIFY(program.tree().list().at(0)->tankItemsArray().empty());
            program.controller().performCommand(command.command);
            QCoreApplication::processEvents();
            for (QWidget *window : QApplication::topLevelWidgets()) {
                if (auto *dialog = qobject_cast<QDialog *>(window); dialog && dialog->isVisible())
                    dialog->reject();
            }
            program.controller().printWindow(false);
            const QString saved = program.filePath("saved.xml");
            QCOMPARE(program.document().writeTankFileWithPath(saved), TankDocument::WriteOutcome::Written);
            QCOMPARE(tankNamesIn(saved), program.tankNames());
        }
    }

    void aTankWithoutListsShowsThemOnceInUse()
    {
        {
            FullProgram source;
            source.controller().selectInTree(source.livestock(ContainerKind::Fish));
            source.tree().copy();
        }
        for (const Command command : {Command::NewFish, Command::Paste}) {
            AlertScript script;
            Program program;
            program.start(program.copyOf(testFile("older-seven.xml")));
            Tank &tank = *program.tree().list().at(0);
            program.controller().selectInTree(tank);
            program.tree().tankList()->setFocus();
            program.controller().performCommand(command);
            if (command == Command::NewFish)
                saveItemSheet();
            QCOMPARE(tank.fish()->count(), 1);
            QCOMPARE(tank.tankItemsArray().size(), containerCount);
            QCOMPARE(program.tree().currentSelectedItem(), TreeItem(*tank.fishListArray().at(0)));
            QCOMPARE(program.controller().currentView(), MainView::LivestockItem);
            for (Container *container : tank.tankItemsArray()) {
                program.controller().selectInTree(*container);
                QCOMPARE(program.tree().currentSelectedItem(), TreeItem(*container));
                QVERIFY(program.window().mainView().grab().width() > 0);
            }
        }
    }

    void leavingTheLogStoresItsColumns()
    {
        FullProgram program;
        Condition &log = *program.tank().condition();
        program.controller().selectInTree(log);
        QHeaderView &header = *ConditionListController::sharedInstance().table()->horizontalHeader();
        header.resizeSection(header.logicalIndex(1), 333);
        program.controller().selectInTree(program.tank());
        QCOMPARE(log.columnInfoArray().at(1).width, 333.0);
    }

    void deleteActsOnTheSelection_data()
    {
        columns<MainView, QString, QString>("view", "sender", "question"); // empty: nothing is asked
        row("tank, by menu", MainView::Tank, "menu", formatText(text("DeleteTankWarning"), {"^0"}));
        row("record, by button", MainView::LivestockItem, "button", formatText(text("DeleteFishWarning"), {"^0"}));
        row("record, by toolbar", MainView::LivestockItem, "toolbar", formatText(text("DeleteFishWarning"), {"^0"}));
        row("record, by key", MainView::LivestockItem, "key", formatText(text("DeleteFishWarning"), {"^0"}));
        row("group", MainView::LivestockGroup, "key", "");
        row("note, by button", MainView::Notes, "button", formatText(text("StandardWarning"), {text("NoteItem")}));
        row("note, by toolbar", MainView::Notes, "toolbar", formatText(text("StandardWarning"), {text("NoteItem")}));
    }

    void deleteActsOnTheSelection()
    {
        auto [view, sender, question] = fetch<MainView, QString, QString>("view", "sender", "question");
        FullProgram program;
        ItemData &fish = program.livestock(ContainerKind::Fish);
        if (view == MainView::Tank)
            program.controller().selectInTree(program.tank());
        else if (view == MainView::LivestockItem)
            program.controller().selectInTree(fish);
        else
            program.controller().selectInTree(
                *program.tank().container(view == MainView::Notes ? ContainerKind::Note : ContainerKind::Fish));
        QCOMPARE(program.controller().currentView(), view);
        if (view == MainView::Notes)
            NoteListController::sharedInstance().table()->selectRow(0);

        if (sender == "menu")
            program.window().menus().action(Command::Delete)->trigger();
        else if (sender == "button")
            program.window().deleteButton()->click();
        else if (sender == "toolbar")
            program.window().toolbar().toolbarDictionary().value("delete")->trigger();
        else
            QTest::keyClick(program.tree().tankList(), Qt::Key_Delete);
        QCoreApplication::processEvents();
        QCOMPARE(shownAlert() != nullptr, !question.isEmpty());
        if (!shownAlert())
            return;
        question.replace("^0", view == MainView::Tank ? program.tank().name : fish.name);
        QCOMPARE(shownAlert()->title(), question);
        QVERIFY(pressAlertButton("alternateButton"));
    }

    void everyCommandFirstStoresWhatIsTyped_data()
    {
        test::columns<Command, bool, bool>("command", "inTheTree", "stores");
        forEachCommandItem(mainMenus(), [](const MenuRow &item) {
            const bool stores = !CommandDispatch::table()[std::size_t(item.command)].actsOnTyping;
            for (const bool inTheTree : {true, false})
                QTest::addRow("%s, %s", item.title.key, inTheTree ? "tree" : "log")
                    << item.command << inTheTree << stores;
        });
    }

    /// A name in the tree or a value in the log is being typed when the command comes.
    void everyCommandFirstStoresWhatIsTyped()
    {
        const auto [command, inTheTree, stores] = fetch<Command, bool, bool>("command", "inTheTree", "stores");
        FullProgram program;
        const auto tank = program.tank().shared_from_this(); // survives New and Revert
        QTableView *log = nullptr;
        if (inTheTree) {
            program.controller().selectInTree(*tank);
            program.window().activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&program.window()));
            program.tree().editName();
        } else {
            tank->condition()->setColumnInfoArray({{"ph", 0}});
            program.controller().selectInTree(*tank->condition());
            program.window().activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&program.window()));
            log = ConditionListController::sharedInstance().table();
            log->setFocus();
            log->setCurrentIndex(log->model()->index(0, 0));
            QTest::keyClick(log, Qt::Key_F2);
        }
        const auto test = std::static_pointer_cast<ConditionData>(tank->condition()->recordAt(0));
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QTest::keyClicks(QApplication::focusWidget(), "3");
        const AlertScript script; // cancels every question
        QTimer closeWindows;
        connect(&closeWindows, &QTimer::timeout, [] {
            if (QWidget *modal = QApplication::activeModalWidget())
                modal->close();
        });
        closeWindows.start(5);
        program.controller().performCommand(command);
        const bool undone = command == Command::Undo; // stored, and taken back
        const bool stored = inTheTree ? tank->name == "3" : test->ph == 3.0F;
        QCOMPARE(stored, stores && !undone);
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void whatACommandChangesIsShown()
    {
        FullProgram program;
        program.window().helpButton()->setFocus();
        QAction *item = program.window().menus().action(Command::ToggleToolbar);
        for (const char *title : {"ShowToolbar", "HideToolbar"}) {
            item->trigger();
            QCOMPARE(item->text(), text(operator""_key(title, 0)));
        }
    }
};

BRINEMARK_APP_TEST(TestCommands)
#include "tst_commands.moc"
