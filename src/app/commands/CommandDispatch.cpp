// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/commands/CommandDispatch.h"

#include "app/ShoalwatchController.h"
#include "app/ShoalwatchDelegate.h"
#include "app/documents/DocumentCommands.h"
#include "app/documents/RecentFiles.h"
#include "app/menus/EditCommands.h"
#include "app/toolbar/MainToolBar.h"
#include "app/toolbar/ToolbarItems.h"
#include "app/tree/TankListController.h"
#include "app/window/MainSelection.h"
#include "app/window/MainWindow.h"
#include "base/TableChecks.h"
#include "calc/views/ConverterController.h"
#include "chemistry/views/ConditionListController.h"
#include "chemistry/views/TankDataEntryController.h"
#include "journals/views/NotificationController.h"
#include "livestock/views/FishDataEntryController.h"
#include "ui/FinishTyping.h"

namespace brinemark
{

namespace
{

template <void (DocumentCommands::*operation)()>
void onDocument(ShoalwatchController &main, const QString &)
{
    (main.documents().*operation)();
}

template <void (ShoalwatchDelegate::*operation)()>
void onDelegate(ShoalwatchController &, const QString &)
{
    (ShoalwatchDelegate::sharedInstance().*operation)();
}

template <void (TankListController::*operation)()>
void onTree(ShoalwatchController &main, const QString &)
{
    (main.tankListController().*operation)();
}

template <void (MainSelection::*operation)()>
void onSelection(ShoalwatchController &main, const QString &)
{
    (main.selection().*operation)();
}

template <void (MainToolBar::*operation)()>
void onToolbar(ShoalwatchController &main, const QString &)
{
    (main.window().toolbar().*operation)();
}

template <class Controller, void (Controller::*operation)()>
void onShared(ShoalwatchController &, const QString &)
{
    (Controller::sharedInstance().*operation)();
}

template <Command command>
void edit(ShoalwatchController &main, const QString &)
{
    performEditCommand(command, main.window().menus(), main.tankListController());
}

template <ItemContext context>
void newLivestock(ShoalwatchController &main, const QString &)
{
    if (main.currentTank())
        FishDataEntryController::sharedInstance().displayItemData(nullptr, context);
}

void print(ShoalwatchController &main, const QString &)
{
    main.printWindow(true);
}

void openRecent(ShoalwatchController &main, const QString &path)
{
    main.documents().openRecentFile(path);
}

void sortBy(ShoalwatchController &main, const QString &identifier)
{
    main.selection().sortBy(identifier);
}

template <bool ascending>
void sortInOrder(ShoalwatchController &main, const QString &)
{
    main.selection().sortAscending(ascending);
}

constexpr CommandRow commandRows[] = {
    {Command::NewFile, &onDocument<&DocumentCommands::newDataFile>},
    {Command::OpenFile, &onDocument<&DocumentCommands::openDataFile>},
    {Command::OpenRecent, &openRecent},
    {Command::ClearRecent, [](ShoalwatchController &, const QString &) { clearRecentFiles(); }},
    {Command::Save, &onDocument<&DocumentCommands::saveCurrentFile>},
    {Command::SaveAs, &onDocument<&DocumentCommands::saveAsCurrentFile>},
    {Command::Revert, &onDocument<&DocumentCommands::revertFile>},
    {Command::Export, &onShared<ConditionListController, &ConditionListController::exportAction>},
    {Command::Print, &print},
    {Command::Quit, &onDelegate<&ShoalwatchDelegate::terminate>},
    {Command::Undo, &onDelegate<&ShoalwatchDelegate::undoChange>},
    {Command::Redo, &onDelegate<&ShoalwatchDelegate::redoChange>},
    {Command::Cut, &edit<Command::Cut>, true},
    {Command::Copy, &edit<Command::Copy>, true},
    {Command::Paste, &edit<Command::Paste>, true},
    {Command::SelectAll, &edit<Command::SelectAll>, true},
    {Command::Delete, &onSelection<&MainSelection::deleteItem>},
    {Command::Preferences, &onDelegate<&ShoalwatchDelegate::showPreferences>},
    {Command::NewTank,
     [](ShoalwatchController &, const QString &) {
         TankDataEntryController::sharedInstance().displayTank(nullptr, true, {});
     }},
    {Command::NewFish, &newLivestock<ItemContext::Fish>},
    {Command::NewPlant, &newLivestock<ItemContext::Plant>},
    {Command::NewInvert, &newLivestock<ItemContext::Invert>},
    {Command::NewCoral, &newLivestock<ItemContext::Coral>},
    // Each is enabled only in the view of the list that gets the entry.
    {Command::NewWaterTest, &onSelection<&MainSelection::newEntry>},
    {Command::NewActivity, &onSelection<&MainSelection::newEntry>},
    {Command::NewInventory, &onSelection<&MainSelection::newEntry>},
    {Command::NewNote, &onSelection<&MainSelection::newEntry>},
    {Command::NewExpense, &onSelection<&MainSelection::newEntry>},
    {Command::Expand, &onTree<&TankListController::expandTankItem>},
    {Command::Collapse, &onTree<&TankListController::collapseTankItem>},
    {Command::ConditionColumns,
     &onShared<ConditionListController, &ConditionListController::showCustomizeConditionColumns>},
    {Command::Graph, &onShared<ConditionListController, &ConditionListController::graphButtonAction>},
    {Command::SortBy, &sortBy},
    {Command::SortAscending, &sortInOrder<true>},
    {Command::SortDescending, &sortInOrder<false>},
    {Command::ToggleToolbar, &onToolbar<&MainToolBar::toggle>},
    {Command::CustomiseToolbar, &onToolbar<&MainToolBar::customise>},
    {Command::ToggleCalculator, &onShared<ConverterController, &ConverterController::toggleConverter>},
    {Command::ToggleOverdue, &onShared<NotificationController, &NotificationController::showOverdue>},
    {Command::Help, &onDelegate<&ShoalwatchDelegate::showHelp>},
    {Command::CheckForUpdates, &onDelegate<&ShoalwatchDelegate::showUpdate>},
    {Command::MailingList, &onDelegate<&ShoalwatchDelegate::displayEListSignUp>},
    {Command::Feedback, &onDelegate<&ShoalwatchDelegate::sendFeedback>},
    {Command::ProductPage, &onDelegate<&ShoalwatchDelegate::productPage>},
    {Command::About, &onDelegate<&ShoalwatchDelegate::showAbout>},
};

static_assert(rowsFollow<Command>(commandRows, &CommandRow::command),
              "commandRows needs one row for each Command, in its order");

} // namespace

CommandDispatch::CommandDispatch(ShoalwatchController &main)
    : m_main(main)
{
}

void CommandDispatch::perform(Command command, const QString &argument)
{
    const CommandRow &row = commandRows[std::size_t(command)];
    if (!row.actsOnTyping)
        finishTyping(m_main.mainWindow());
    row.perform(m_main, argument);
    m_main.validate();
}

void CommandDispatch::performToolbarItem(QStringView identifier)
{
    const ToolbarItem *item = toolbarItem(identifier);
    if (item && item->command)
        perform(*item->command);
}

std::span<const CommandRow> CommandDispatch::table()
{
    return commandRows;
}

} // namespace brinemark
