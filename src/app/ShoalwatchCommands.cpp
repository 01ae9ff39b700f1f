// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShoalwatchController.h"

#include "app/ShoalwatchDelegate.h"
#include "app/documents/DocumentCommands.h"
#include "app/menus/EditCommands.h"
#include "app/menus/MainMenuBar.h"
#include "app/printing/PrintView.h"
#include "app/toolbar/MainToolBar.h"
#include "app/toolbar/ToolbarItems.h"
#include "app/tree/TankListController.h"
#include "app/window/MainViews.h"
#include "app/window/MainWindow.h"
#include "base/text/Texts.h"
#include "calc/views/ConverterController.h"
#include "chemistry/views/ConditionListController.h"
#include "chemistry/views/TankDataEntryController.h"
#include "journals/views/NotificationController.h"
#include "livestock/views/FishDataEntryController.h"
#include "model/TankFile.h"
#include "online/views/EListSignupController.h"
#include "ui/FinishTyping.h"
#include "ui/MainViewController.h"

#include <QApplication>
#include <QMenu>
#include <QScopedValueRollback>
#include <QToolButton>
#include <QUndoStack>

// The main controller's commands: where each menu item, toolbar item and button leads, and what is enabled when.

namespace brinemark
{

void ShoalwatchController::connectWindow()
{
    MainMenuBar &menus = m_window->menus();
    menus.setStateProvider([this] { return menuState(); });
    connect(&menus, &MainMenuBar::commandChosen, this, &ShoalwatchController::performCommand);
    connect(&menus, &MainMenuBar::menuWillOpen, this, &ShoalwatchController::validate);
    m_window->toolbarItemChosen = [this](const QString &identifier) { performToolbarItem(identifier); };

    ShoalwatchDelegate &delegate = ShoalwatchDelegate::sharedInstance();
    m_window->closeRequested = [&delegate] { delegate.terminate(); };
    m_window->takesDroppedFile = &looksLikeTankFile;
    m_window->openDroppedFile = [&delegate](const QString &path) { return delegate.applicationOpenFile(path); };

    buildNewMenu();
    connect(m_window->deleteButton(), &QToolButton::clicked, this, &ShoalwatchController::deleteItem);
    connect(m_window->helpButton(), &QToolButton::clicked, this, [&delegate] { delegate.showHelp(); });

    connect(m_views.get(), &MainViews::selectionChanged, this, &ShoalwatchController::validate);
    connect(&undoManager(), &QUndoStack::indexChanged, this, &ShoalwatchController::validate);
    connect(qApp, &QApplication::focusChanged, this, &ShoalwatchController::validate);
}

void ShoalwatchController::buildNewMenu()
{
    auto *menu = new QMenu(m_window->newButton());
    for (const Command command :
         {Command::NewTank, Command::NewFish, Command::NewPlant, Command::NewInvert, Command::NewCoral})
        menu->addAction(m_window->menus().action(command));
    m_window->newButton()->setMenu(menu);
}

// ---- what is enabled

bool ShoalwatchController::canDelete() const
{
    const MainView view = m_views->currentViewConstant();
    return brinemark::canDelete(view, m_views->hasSelectedRow(view));
}

void ShoalwatchController::setEnableDeleteButton(bool enable)
{
    // The list says so after every change of its selection; what it can delete shows in the rest of the window as well.
    m_window->deleteButton()->setEnabled(enable);
    validate();
}

bool ShoalwatchController::validateToolbarItem(const QString &identifier)
{
    return toolbarItemEnabled(identifier, currentTank() != nullptr, canDelete());
}

MenuState ShoalwatchController::menuState()
{
    MenuState state;
    const TreeItem item = m_tankListController.currentSelectedItem();
    state.view = m_views->currentViewConstant();
    state.hasCurrentTank = currentTank() != nullptr;
    state.windowEdited = m_document.isEdited();
    state.documentHasPath = !m_document.representedFilename().isEmpty();
    state.toolbarVisible = m_window->toolbar().isShown();
    state.calculatorVisible =
        ConverterController::hasSharedInstance() && ConverterController::sharedInstance().isVisible();
    state.overdueNoticeVisible = NotificationController::sharedInstance().isVisible();
    state.selectedRowExpandable = !item.isNone() && item.isExpandable();
    state.selectedRowExpanded = state.selectedRowExpandable && m_tankListController.isExpanded(item);
    for (qint32 view = 0; view < mainViewCount; ++view)
        state.listHasSelectedRow[view] = m_views->hasSelectedRow(MainView(view));
    state.canUndo = undoManager().canUndo();
    state.canRedo = undoManager().canRedo();
    state.treeHasFocus = m_window->menus().commandTarget() == m_tankListController.tankList();
    return state;
}

void ShoalwatchController::validate()
{
    if (m_validating || m_ending) // enabling a focused control away moves the focus, which leads here again
        return;
    const QScopedValueRollback validating(m_validating, true);
    m_window->menus().validate();
    validateEditCommands(m_window->menus(), m_tankListController, canDelete());
    m_window->toolbar().validate([this](const QString &identifier) { return validateToolbarItem(identifier); });
    m_window->deleteButton()->setEnabled(currentTank() && canDelete());
}

// ---- what is done

void ShoalwatchController::performToolbarItem(const QString &identifier)
{
    const ToolbarItem *item = toolbarItem(identifier);
    if (item && item->command)
        performCommand(*item->command);
}

void ShoalwatchController::performCommand(Command command)
{
    ShoalwatchDelegate &delegate = ShoalwatchDelegate::sharedInstance();
    switch (command) {
    case Command::NewFile:
        m_documents->newDataFile();
        break;
    case Command::OpenFile:
        m_documents->openDataFile();
        break;
    case Command::Save:
        m_documents->saveCurrentFile();
        break;
    case Command::SaveAs:
        m_documents->saveAsCurrentFile();
        break;
    case Command::Revert:
        m_documents->revertFile();
        break;
    case Command::Print:
        finishTyping(m_window.get());
        printWindow(true);
        break;
    case Command::Quit:
        delegate.terminate();
        break;
    case Command::Undo:
        delegate.undoChange();
        break;
    case Command::Redo:
        delegate.redoChange();
        break;
    case Command::Cut:
    case Command::Copy:
    case Command::Paste:
    case Command::SelectAll:
        performEditCommand(command, m_window->menus(), m_tankListController);
        break;
    case Command::Delete:
        deleteItem();
        break;
    case Command::Preferences:
        showPreferences();
        break;
    case Command::NewTank:
        TankDataEntryController::sharedInstance().displayTank(nullptr, true, {});
        break;
    case Command::NewFish:
        newLivestock(ItemContext::Fish);
        break;
    case Command::NewPlant:
        newLivestock(ItemContext::Plant);
        break;
    case Command::NewInvert:
        newLivestock(ItemContext::Invert);
        break;
    case Command::NewCoral:
        newLivestock(ItemContext::Coral);
        break;
    case Command::NewWaterTest:
    case Command::NewActivity:
    case Command::NewInventory:
    case Command::NewNote:
    case Command::NewExpense:
        // Enabled only in the view of the list that gets the entry.
        if (MainViewController *controller = m_views->controller(m_views->currentViewConstant()))
            controller->newEntry();
        break;
    case Command::Expand:
        m_tankListController.expandTankItem();
        break;
    case Command::Collapse:
        m_tankListController.collapseTankItem();
        break;
    case Command::ConditionColumns:
        ConditionListController::sharedInstance().showCustomizeConditionColumns();
        break;
    case Command::ToggleToolbar:
        m_window->toolbar().toggle();
        break;
    case Command::CustomiseToolbar:
        m_window->toolbar().customise();
        break;
    case Command::ToggleCalculator:
        ConverterController::sharedInstance().toggleConverter();
        break;
    case Command::ToggleOverdue:
        NotificationController::sharedInstance().showOverdue();
        break;
    case Command::Help:
        delegate.showHelp();
        break;
    case Command::CheckForUpdates:
        delegate.showUpdate();
        break;
    case Command::MailingList:
        delegate.displayEListSignUp();
        break;
    case Command::Feedback:
        delegate.sendFeedback();
        break;
    case Command::ProductPage:
        delegate.productPage();
        break;
    case Command::About:
        delegate.showAbout();
        break;
    }
    validate();
}

void ShoalwatchController::newLivestock(ItemContext context)
{
    if (currentTank())
        FishDataEntryController::sharedInstance().displayItemData(nullptr, context);
}

void ShoalwatchController::deleteItem()
{
    if (!canDelete())
        return;
    MainViewController *controller = m_views->controller(m_views->currentViewConstant());
    switch (m_views->currentViewConstant()) {
    case MainView::None:
    case MainView::Tank:
        m_tankListController.deleteTankEntry();
        break;
    case MainView::LivestockItem:
        m_tankListController.deleteItemDataEntry();
        break;
    default:
        if (controller)
            controller->deleteSelected();
        break;
    }
}

bool ShoalwatchController::printWindow(bool interaction)
{
    updateColumnInfo();
    QWidget &view = *m_views->currentView();
    if (!interaction)
        return printViewWithoutDialog(view);
    printView(m_window.get(), view);
    return true;
}

} // namespace brinemark
