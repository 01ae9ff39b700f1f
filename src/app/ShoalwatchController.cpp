// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShoalwatchController.h"

#include "app/ShoalwatchDelegate.h"
#include "app/documents/DocumentCommands.h"
#include "app/menus/MainMenuBar.h"
#include "app/preferences/PrefsController.h"
#include "app/toolbar/MainToolBar.h"
#include "app/tree/TankListController.h"
#include "app/window/MainViews.h"
#include "app/window/MainWindow.h"
#include "base/text/Texts.h"
#include "chemistry/views/TankDataEntryController.h"
#include "journals/views/NotificationController.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/FishDataEntryController.h"
#include "livestock/views/LivestockGroupController.h"
#include "online/views/EListSignupController.h"
#include "ui/Alerts.h"
#include "ui/MainViewController.h"
#include "ui/WindowPlacement.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QTimer>
#include <QToolButton>
#include <QUndoStack>

namespace brinemark
{

ShoalwatchController::ShoalwatchController()
    : m_tankListController(TankListController::sharedInstance())
    , m_window(std::make_unique<MainWindow>(m_tankListController.tankList()))
    , m_document(m_tankListController.list(), *this)
    , m_documents(std::make_unique<DocumentCommands>(
          m_document, m_window.get(),
          [](bool terminate) { ShoalwatchDelegate::sharedInstance().replyToApplicationShouldTerminate(terminate); }))
    , m_views(
          std::make_unique<MainViews>(m_window->mainView(), m_tankListController.tankList(), m_window->helpButton()))
{
    Shell::setShared(this);
    awakeFromNib();
}

ShoalwatchController::~ShoalwatchController()
{
    // The window lets go of its focus while it is taken down; nobody is left to validate anything for.
    disconnect(qApp, nullptr, this, nullptr);
    disconnect(&undoManager(), nullptr, this, nullptr);
    Shell::setShared(nullptr);
}

void ShoalwatchController::awakeFromNib()
{
    m_tankListController.setShell(*this);
    m_tankListController.openItemEditor = [](ItemData &item) {
        FishDataEntryController::sharedInstance().displayItemData(&item, item.itemContext());
    };
    m_tankListController.resetDocument = [this] { m_document.readTankFileWithPath({}); };
    m_tankListController.canDelete = [this] { return canDelete(); };
    m_window->restoreWidths();
    showDocumentTitle({});
    connectWindow(); // in ShoalwatchCommands.cpp
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
        m_tankListController.select(TreeItem(*tank));
        editFirstTank(tank);
    }
    QTimer::singleShot(0, this, [] { NotificationController::sharedInstance().showIfNeeded(); });
    ShoalwatchDelegate::sharedInstance().showConverterIfWanted();
    validate();
}

void ShoalwatchController::editFirstTank(const std::shared_ptr<Tank> &tank)
{
    const auto edit = [tank] { TankDataEntryController::sharedInstance().displayTank(tank, false, {}); };
    // On the first run the sign-up stands before everything else.
    EListSignupController &signup = EListSignupController::sharedInstance();
    if (!signup.isVisible()) {
        edit();
        return;
    }
    connect(signup.window(), &QDialog::finished, this, edit, Qt::SingleShotConnection);
    signup.bringToFront();
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

void ShoalwatchController::showPreferences()
{
    PrefsController::sharedInstance().display();
}

// ---- the document

void ShoalwatchController::documentModifiedWithChange(bool made)
{
    m_document.documentModifiedWithChange(made);
    validate();
}

void ShoalwatchController::showDocumentTitle(const QString &path)
{
    const QString name = path.isEmpty() ? text("UntitledFileName") : QFileInfo(path).fileName();
    m_window->setWindowFilePath(path);
    m_window->setWindowTitle(name + QStringLiteral("[*]"));
}

void ShoalwatchController::showEditedMark(bool edited)
{
    m_window->setWindowModified(edited);
    validate();
}

void ShoalwatchController::resetNotificationView()
{
    NotificationController::sharedInstance().resetView();
}

void ShoalwatchController::showNotificationIfOnScreen()
{
    if (m_window->isVisible())
        NotificationController::sharedInstance().showIfNeeded();
}

void ShoalwatchController::forgetUndo()
{
    undoManager().clear();
}

bool ShoalwatchController::askKeepBackupOfOlderFile()
{
    beep();
    const Alert alert{AlertStyle::Critical,     text("ConvertTitle"),    text("ConvertMessage"),
                      text("ConvertDuplicate"), text("ConvertContinue"), {}};
    return runAlertPanel(m_window.get(), alert) == AlertDefault;
}

DocumentHost::OverwriteAnswer ShoalwatchController::askBeforeOverwriting(const QString &path, OverwriteReason reason)
{
    const bool changed = reason == OverwriteReason::ChangedOnDisk;
    const Alert alert{AlertStyle::Critical,
                      text(changed ? "ChangedOnDiskTitle"_key : "NotFullyReadTitle"_key),
                      fillPlaceholders(text(changed ? "ChangedOnDiskMessage"_key : "NotFullyReadMessage"_key),
                                       {QFileInfo(path).fileName()}),
                      text("ChangedOnDiskSaveAs"),
                      text("ChangedOnDiskOverwrite"),
                      text("CancelLabel")};
    switch (runAlertPanel(m_window.get(), alert)) {
    case AlertDefault:
        return OverwriteAnswer::SaveElsewhere;
    case AlertAlternate:
        return OverwriteAnswer::Overwrite;
    default:
        return OverwriteAnswer::Cancel;
    }
}

void ShoalwatchController::reportReadError()
{
    beep();
    runAlertPanel(m_window.get(), {AlertStyle::Critical, text("Error"), text("ReadErrorMessage"), {}, {}, {}});
}

void ShoalwatchController::reportSaveError(const QString &, const QString &)
{
    runAlertPanel(m_window.get(), {AlertStyle::Critical, text("Error"), text("SaveErrorMessage"), {}, {}, {}});
}

// ---- the tree

TankList &ShoalwatchController::tankList()
{
    return m_tankListController.list();
}
Tank *ShoalwatchController::currentTank()
{
    return m_tankListController.currentTank();
}
void ShoalwatchController::forgetRows()
{
    m_tankListController.forgetRows();
}
void ShoalwatchController::reloadTree()
{
    m_tankListController.reload();
}
void ShoalwatchController::refreshTree()
{
    m_tankListController.updateDisplay();
}
void ShoalwatchController::updateTree()
{
    m_tankListController.updateDisplay();
}
void ShoalwatchController::fitTreeColumn()
{
    m_tankListController.fitColumn();
}
void ShoalwatchController::selectTreeRow(int row)
{
    m_tankListController.selectRow(row);
}
int ShoalwatchController::selectedTreeRow() const
{
    return m_tankListController.selectedRow();
}
void ShoalwatchController::editNameInTree()
{
    m_tankListController.editName();
}

void ShoalwatchController::appendTank(const std::shared_ptr<Tank> &tank)
{
    m_tankListController.list().append(tank);
    m_tankListController.updateDisplay();
    m_tankListController.select(TreeItem(*tank));
}

void ShoalwatchController::selectInTree(Tank &tank)
{
    m_tankListController.select(TreeItem(tank));
}
void ShoalwatchController::selectInTree(Container &container)
{
    m_tankListController.select(TreeItem(container));
}

void ShoalwatchController::selectInTree(Record &livestock)
{
    if (livestock.recordType() == RecordType::Item)
        m_tankListController.select(TreeItem(static_cast<ItemData &>(livestock)));
}

// ---- the views

void ShoalwatchController::changeView(MainView view)
{
    const TreeItem item = m_tankListController.currentSelectedItem();
    if (view == MainView::LivestockGroup)
        LivestockGroupController::sharedInstance().setContainer(item.container);
    m_views->changeView(view);
    if (view == MainView::LivestockItem)
        FishDataController::sharedInstance().displayItemData(item.record);
    validate();
}

MainView ShoalwatchController::currentView() const
{
    return m_views->currentViewConstant();
}

void ShoalwatchController::updateColumnInfo()
{
    m_views->updateColumnInfo();
}

// ---- what else the views see

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

} // namespace brinemark

#include "moc_ShoalwatchController.cpp"
