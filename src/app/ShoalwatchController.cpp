// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShoalwatchController.h"

#include "app/ShoalwatchDelegate.h"
#include "app/commands/CommandDispatch.h"
#include "app/documents/DocumentCommands.h"
#include "app/documents/MainDocumentHost.h"
#include "app/documents/RecentFiles.h"
#include "app/documents/TankDocument.h"
#include "app/menus/EditCommands.h"
#include "app/menus/MainMenuBar.h"
#include "app/printing/PrintView.h"
#include "app/toolbar/MainToolBar.h"
#include "app/tree/TankListController.h"
#include "app/window/MainSelection.h"
#include "app/window/MainViews.h"
#include "app/window/MainWindow.h"
#include "base/text/Texts.h"
#include "calc/views/ConverterController.h"
#include "chemistry/views/TankDataEntryController.h"
#include "journals/views/NotificationController.h"
#include "livestock/views/FishDataEntryController.h"
#include "model/TankFile.h"
#include "online/views/EListSignupController.h"
#include "ui/Alerts.h"
#include "ui/MainViewController.h"
#include "ui/WindowPlacement.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolButton>
#include <QUndoStack>

namespace brinemark
{

ShoalwatchController::ShoalwatchController()
    : m_tankListController(TankListController::sharedInstance())
    , m_window(std::make_unique<MainWindow>(m_tankListController.tankList()))
    , m_views(
          std::make_unique<MainViews>(m_window->mainView(), m_tankListController.tankList(), m_window->helpButton()))
    , m_selection(std::make_unique<MainSelection>(m_tankListController, *m_views))
    , m_documentHost(std::make_unique<MainDocumentHost>(*this))
    , m_document(std::make_unique<TankDocument>(m_tankListController.list(), *m_documentHost))
    , m_documents(std::make_unique<DocumentCommands>(
          *m_document, m_window.get(),
          [](bool terminate) { ShoalwatchDelegate::sharedInstance().replyToApplicationShouldTerminate(terminate); }))
    , m_dispatch(std::make_unique<CommandDispatch>(*this))
{
    Shell::setShared(this);
    awakeFromNib();
}

ShoalwatchController::~ShoalwatchController()
{
    // Destroying the window moves the focus, which must not lead to validate() any more.
    disconnect(qApp, nullptr, this, nullptr);
    disconnect(&undoManager(), nullptr, this, nullptr);
    Shell::setShared(nullptr);
}

// ---- what is connected

void ShoalwatchController::awakeFromNib()
{
    connectTree();
    m_window->restoreWidths();
    m_documentHost->showDocumentTitle({});
    connectWindow();
    connect(m_views.get(), &MainViews::selectionChanged, this, &ShoalwatchController::validate);
    connect(m_views.get(), &MainViews::addTankRequested, this, [this] { performCommand(Command::NewTank); });
    connect(&undoManager(), &QUndoStack::indexChanged, this, &ShoalwatchController::validate);
    connect(qApp, &QApplication::focusChanged, this, &ShoalwatchController::validate);
}

void ShoalwatchController::connectTree()
{
    m_tankListController.setShell(*this);
    m_tankListController.openItemEditor = [](ItemData &item) {
        FishDataEntryController::sharedInstance().displayItemData(&item, item.itemContext());
    };
    m_tankListController.resetDocument = [this] { m_document->readTankFileWithPath({}); };
    m_tankListController.canDelete = [this] { return canDelete(); };
    m_tankListController.performCommand = [this](Command command) { performCommand(command); };
}

void ShoalwatchController::connectWindow()
{
    MainMenuBar &menus = m_window->menus();
    menus.setStateProvider([this] { return menuState(); });
    menus.setChoiceProvider([this](Command command) { return menuChoices(command, m_selection->view()); });
    connect(&menus, &MainMenuBar::commandChosen, this, &ShoalwatchController::performCommand);
    connect(&menus, &MainMenuBar::menuWillOpen, this, &ShoalwatchController::validate);
    m_window->toolbarItemChosen = [this](const QString &identifier) { m_dispatch->performToolbarItem(identifier); };
    const auto sends = [this](QToolButton *button, Command command) {
        connect(button, &QToolButton::clicked, this, [this, command] { performCommand(command); });
    };
    sends(m_window->deleteButton(), Command::Delete);
    sends(m_window->helpButton(), Command::Help);
    buildNewMenu();

    m_window->closeRequested = [this] { performCommand(Command::Quit); };
    m_window->takesDroppedFile = &looksLikeTankFile;
    m_window->openDroppedFile = [](const QString &path) {
        ShoalwatchDelegate::sharedInstance().applicationOpenFile(path);
    };
}

void ShoalwatchController::buildNewMenu()
{
    auto *menu = new QMenu(m_window->newButton());
    for (const Command command :
         {Command::NewTank, Command::NewFish, Command::NewPlant, Command::NewInvert, Command::NewCoral})
        menu->addAction(m_window->menus().action(command));
    m_window->newButton()->setMenu(menu);
}

// ---- the window

void ShoalwatchController::display()
{
    showInFront(*m_window);
    if (m_tankListController.list().isEmpty()) {
        const auto tank = std::make_shared<Tank>(text("NewTankName"));
        m_tankListController.list().append(tank);
        m_tankListController.updateDisplay();
        tank->tankExpanded = true;
        m_tankListController.expandRows(*tank);
        selectInTree(*tank);
        editFirstTank(tank);
    }
    QTimer::singleShot(0, this, [] { NotificationController::sharedInstance().showIfNeeded(); });
    ShoalwatchDelegate::sharedInstance().showConverterIfWanted();
    // Behind the main window, a dialog that was opened before it would keep it from taking keys without being seen.
    if (QWidget *modal = QApplication::activeModalWidget()) {
        modal->raise();
        modal->activateWindow();
    }
    validate();
}

void ShoalwatchController::editFirstTank(const std::shared_ptr<Tank> &tank)
{
    // On the first run the sign-up window comes first.
    EListSignupController::sharedInstance().whenClosed(
        this, [tank] { TankDataEntryController::sharedInstance().displayTank(tank, false, {}); });
}

void ShoalwatchController::windowWillClose()
{
    m_window->storeWidths();
}

void ShoalwatchController::programWillEnd()
{
    m_window->hide();
    m_ending = true;
}

QWidget *ShoalwatchController::mainWindow()
{
    return m_window.get();
}

void ShoalwatchController::orderFrontAndCheckModified()
{
    m_window->raise();
    m_window->activateWindow();
    validate();
}

void ShoalwatchController::showWarningSheet(const QString &title, const QString &message)
{
    beginAlertSheet(m_window.get(), {AlertStyle::Critical, title, message, {}, {}, {}},
                    [this](int) { m_window->activateWindow(); });
}

bool ShoalwatchController::printWindow(bool interaction)
{
    m_views->updateColumnInfo();
    QWidget &view = *m_views->currentView();
    if (!interaction)
        return printViewWithoutDialog(view);
    printView(m_window.get(), view);
    return true;
}

// ---- what is enabled

bool ShoalwatchController::canDelete() const
{
    return m_selection->canDelete();
}

void ShoalwatchController::setEnableDeleteButton(bool enable)
{
    // A list calls this after every change of its selection, on which menus and toolbar depend as well.
    m_window->deleteButton()->setEnabled(enable);
    validate();
}

bool ShoalwatchController::validateMenuItem(int tag)
{
    return menuItemState(tag, menuState()).enabled;
}

bool ShoalwatchController::validateToolbarItem(const QString &identifier)
{
    return toolbarItemEnabled(identifier, currentTank() != nullptr, canDelete());
}

MenuState ShoalwatchController::menuState()
{
    MenuState state;
    const TreeItem item = m_tankListController.currentSelectedItem();
    state.view = currentView();
    state.hasCurrentTank = currentTank() != nullptr;
    state.windowEdited = m_document->isEdited();
    state.documentHasPath = !m_document->representedFilename().isEmpty();
    state.toolbarVisible = m_window->toolbar().isShown();
    state.calculatorVisible =
        ConverterController::hasSharedInstance() && ConverterController::sharedInstance().isVisible();
    state.overdueNoticeVisible = NotificationController::sharedInstance().isVisible();
    state.selectedRowExpandable = !item.isNone() && item.isExpandable();
    state.selectedRowExpanded = state.selectedRowExpandable && m_tankListController.isExpanded(item);
    for (qint32 view = 0; view < mainViewCount; ++view)
        state.listHasSelectedRow[view] = m_views->hasSelectedRow(MainView(view));
    if (const Tank *tank = currentTank())
        state.waterTests = tank->condition()->count();
    const MainViewController *view = m_selection->view();
    if (const std::optional<SortOrder> order = view ? view->sortOrder() : std::nullopt)
        state.sortAscending = order->ascending;
    state.hasRecentFiles = !recentFiles().isEmpty();
    state.canUndo = undoManager().canUndo();
    state.canRedo = undoManager().canRedo();
    state.treeHasFocus = m_window->menus().commandTarget() == m_tankListController.tankList();
    return state;
}

void ShoalwatchController::validate()
{
    if (m_validating || m_ending) // disabling the focused control moves the focus, which calls this again
        return;
    const QScopedValueRollback validating(m_validating, true);
    m_window->menus().validate();
    validateEditCommands(m_window->menus(), m_tankListController);
    m_window->toolbar().validate([this](const QString &identifier) { return validateToolbarItem(identifier); });
    m_window->deleteButton()->setEnabled(validateMenuItem(menutag::Delete));
}

// ---- what its parts do

void ShoalwatchController::performCommand(Command command, const QString &argument)
{
    m_dispatch->perform(command, argument);
}
void ShoalwatchController::deleteItem()
{
    performCommand(Command::Delete);
}

void ShoalwatchController::documentModifiedWithChange(bool made)
{
    m_document->documentModifiedWithChange(made);
    validate();
}

void ShoalwatchController::changeView(MainView view)
{
    m_selection->changeView(view);
    validate();
}
MainView ShoalwatchController::currentView() const
{
    return m_selection->currentView();
}
void ShoalwatchController::appendTank(const std::shared_ptr<Tank> &tank)
{
    m_selection->appendTank(tank);
}
void ShoalwatchController::selectInTree(Tank &tank)
{
    m_selection->selectInTree(tank);
}
void ShoalwatchController::selectInTree(Container &container)
{
    m_selection->selectInTree(container);
}
void ShoalwatchController::selectInTree(Record &livestock)
{
    m_selection->selectInTree(livestock);
}

TankList &ShoalwatchController::tankList()
{
    return m_tankListController.list();
}
Tank *ShoalwatchController::currentTank()
{
    return m_tankListController.currentTank();
}
void ShoalwatchController::updateTree()
{
    m_tankListController.updateDisplay();
}
QUndoStack &ShoalwatchController::undoManager()
{
    return ShoalwatchDelegate::sharedInstance().undoManager();
}
QMenu &ShoalwatchController::dockMenu()
{
    return ShoalwatchDelegate::sharedInstance().dockMenu();
}
void ShoalwatchController::rebuildDockMenu()
{
    ShoalwatchDelegate::sharedInstance().buildDockMenu();
}
QString ShoalwatchController::representedFilename() const
{
    return m_document->representedFilename();
}

} // namespace brinemark

#include "moc_ShoalwatchController.cpp"
