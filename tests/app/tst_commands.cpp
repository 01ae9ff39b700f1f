// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/commands/CommandDispatch.h"
#include "app/menus/MainMenuBar.h"
#include "app/toolbar/MainToolBar.h"
#include "app/tree/TankOutlineView.h"
#include "base/text/Texts.h"
#include "chemistry/views/ConditionListController.h"
#include "journals/views/NoteListController.h"
#include "model/LivestockData.h"
#include "support/AppFixture.h"
#include "support/DataRow.h"
#include "ui/MainView.h"

#include <QHeaderView>
#include <QLabel>
#include <QStackedWidget>
#include <QTableView>
#include <QToolButton>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// The program with a tank that holds a record of every kind.
struct FullProgram : Program {
    FullProgram() { start(testFile("every-field.xml")); }
    static Tank &tank() { return *tree().list().at(0); }
    static ItemData &livestock(ContainerKind kind)
    {
        return static_cast<ItemData &>(*tank().container(kind)->recordAt(0));
    }
    /// The title of the view on screen.
    static QString title() { return window().mainView().currentWidget()->findChild<QLabel *>("viewTitle")->text(); }
};

} // namespace

// What each command does in the whole program, and what the selection in the tree means for it.

class TestCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWindowOpens_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<QString>("window");
        row("print", Command::Print, "printDialog");
        row("preferences", Command::Preferences, "prefWindow");
        row("new tank", Command::NewTank, "tankSheet");
        row("columns", Command::ConditionColumns, "customColumnWindow");
        row("toolbar", Command::CustomiseToolbar, "toolbarCustomiseDialog");
        row("calculator", Command::ToggleCalculator, "convertWindow");
        row("overdue", Command::ToggleOverdue, "notePanel");
        row("help", Command::Help, "helpWindow");
        row("updates", Command::CheckForUpdates, "updateWindow");
        row("mailing list", Command::MailingList, "signupWindow");
        row("about", Command::About, "aboutPanel");
    }

    void aWindowOpens()
    {
        QFETCH(Command, command);
        QFETCH(QString, window);
        FullProgram program;
        const auto overdue = std::make_shared<ScheduleData>(&program.tank());
        overdue->date = clock::now().addDays(-3);
        program.tank().scheduleListArray().push_back(overdue);
        program.controller().selectInTree(*program.tank().condition());
        const QByteArray name = window.toLatin1();
        QVERIFY(!shownWindow<QWidget>(name));
        program.controller().performCommand(command);
        QVERIFY(awaitWindow<QWidget>(name));
        shownWindow<QWidget>(name)->close();
    }

    void aRecordIsAdded_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<ContainerKind>("kind");
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
        QFETCH(Command, command);
        QFETCH(ContainerKind, kind);
        FullProgram program;
        Container &list = *program.tank().container(kind);
        program.controller().selectInTree(list);
        const int before = list.count();
        const AlertScript script; // dismisses the explanation that a new water test shows
        program.controller().performCommand(command);
        QCOMPARE(list.count(), before + 1);
        QVERIFY(program.document().isEdited());
        QCoreApplication::processEvents();
    }

    void theViewShowsTheSelectedRow()
    {
        FullProgram program;
        for (const ContainerKind kind :
             {ContainerKind::Coral, ContainerKind::Fish, ContainerKind::Plant, ContainerKind::Invert}) {
            program.controller().selectInTree(program.livestock(kind));
            QCOMPARE(program.controller().currentView(), MainView::LivestockItem);
            QCOMPARE(program.title(), program.livestock(kind).name);
            program.controller().selectInTree(*program.tank().container(kind));
            QCOMPARE(program.title(), program.tank().container(kind)->name());
        }
        const auto note = program.tank().noteListArray().at(0);
        program.controller().selectInTree(*note); // journal records have no row in the tree
        QCOMPARE(program.controller().currentView(), MainView::LivestockGroup);
    }

    void aRecordOpensItsEditor()
    {
        FullProgram program;
        program.controller().selectInTree(program.livestock(ContainerKind::Coral));
        QTest::keyClick(program.tree().tankList(), Qt::Key_Return);
        auto *sheet = awaitWindow("itemSheet");
        QVERIFY(sheet);
        sheet->reject();
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
        QTest::addColumn<MainView>("view");
        QTest::addColumn<QString>("sender");
        QTest::addColumn<QString>("question"); // empty: nothing is asked
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
        QFETCH(MainView, view);
        QFETCH(QString, sender);
        QFETCH(QString, question);
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
