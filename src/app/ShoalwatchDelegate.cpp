// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ShoalwatchDelegate.h"

#include "app/ShoalwatchController.h"
#include "app/documents/DocumentCommands.h"
#include "app/documents/TankDocument.h"
#include "app/preferences/PrefsController.h"
#include "app/startup/DockMenu.h"
#include "app/startup/StartupSteps.h"
#include "app/tree/TankListController.h"
#include "app/window/MainViews.h"
#include "app/window/MainWindow.h"
#include "base/PreferenceKeys.h"
#include "base/Preferences.h"
#include "base/Product.h"
#include "base/saving/KeptCopies.h"
#include "base/text/Texts.h"
#include "calc/views/ConverterController.h"
#include "journals/views/NotificationController.h"
#include "livestock/views/FishDataEntryController.h"
#include "model/TankFile.h"
#include "online/views/EListSignupController.h"
#include "online/views/QZUpdateController.h"
#include "ui/Alerts.h"
#include "ui/Desktop.h"
#include "ui/FinishTyping.h"
#include "ui/HelpWindow.h"
#include "ui/WindowPlacement.h"

#include <QApplication>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QUndoStack>

namespace brinemark
{

namespace
{

constexpr int undoLevels = 20;

} // namespace

ShoalwatchDelegate::ShoalwatchDelegate()
    : m_undoManager(new QUndoStack(this))
    , m_dockMenu(new DockMenu(this))
{
    m_undoManager->setUndoLimit(undoLevels);
}

ShoalwatchDelegate::~ShoalwatchDelegate()
{
    Preferences::shared().onWriteFailure({});
}

void ShoalwatchDelegate::destroyEverything()
{
    if (ShoalwatchController::hasSharedInstance())
        ShoalwatchController::sharedInstance().programWillEnd();
    // The undo steps hold records and call back into the controllers, so they are destroyed first.
    if (hasSharedInstance())
        sharedInstance().m_undoManager->clear();
    SharedRegistry::endAll();
}

// ---- start-up

void ShoalwatchDelegate::applicationWillFinishLaunching()
{
    m_shoalwatchController = &ShoalwatchController::sharedInstance();
    m_fishDataEntryController = &FishDataEntryController::sharedInstance();
    m_notificationController = &NotificationController::sharedInstance();
}

void ShoalwatchDelegate::applicationDidFinishLaunching()
{
    Preferences::shared().onWriteFailure([this] { preferencesNotWritten(); });
    if (startup::isFirstRun())
        firstRun();
    startup::applicationSupportFolderCheck(startup::applicationSupportFolder());
    openDefaultFile();
    m_shoalwatchController->display();
    m_launched = true;
    if (m_preferencesUnsaved)
        reportUnsavedPreferences();
    QZUpdateController::sharedInstance().launchUpdateCheck();
    startup::updatePreferenceFile();
    reportKeptCopies();
}

bool ShoalwatchDelegate::openDefaultFile()
{
    const QString defaultFile = startup::defaultFileExistsCheck();
    TankDocument &document = m_shoalwatchController->document();
    if (!document.representedFilename().isEmpty())
        return true;
    return document.readTankFileWithPath(defaultFile) || defaultFile.isEmpty();
}

void ShoalwatchDelegate::firstRun()
{
    displayEListSignUp();
    startup::writeFirstRunValues();
    QZUpdateController::sharedInstance().initDefaults();
    Preferences::shared().flush();
    m_notificationController->placeAt(NotificationController::firstPlace);
    centreOnScreen(m_shoalwatchController->window());
}

void ShoalwatchDelegate::preferencesNotWritten()
{
    if (m_launched)
        reportUnsavedPreferences();
    else
        m_preferencesUnsaved = true; // a sheet would come up before its window
}

void ShoalwatchDelegate::reportUnsavedPreferences()
{
    QWidget *window = m_shoalwatchController->mainWindow();
    const QString message = fillPlaceholders(text("PreferencesNotSavedMessage"), {Preferences::shared().path()});
    const Alert alert{.title = text("PreferencesNotSavedTitle"), .message = message};
    // A sheet would vanish with the program.
    if (m_quitting)
        runAlertPanel(window, alert);
    else
        EListSignupController::sharedInstance().whenClosed(this, [=] { beginAlertSheet(window, alert); });
}

void ShoalwatchDelegate::reportKeptCopies()
{
    const QStringList copies = takeAbandonedCopies();
    if (!copies.isEmpty())
        beginAlertSheet(m_shoalwatchController->mainWindow(),
                        {.style = AlertStyle::Critical,
                         .title = text("KeptCopiesTitle"),
                         .message = fillPlaceholders(text("KeptCopiesMessage"), {copies.join(u'\n')})});
}

void ShoalwatchDelegate::showConverterIfWanted()
{
    if (Preferences::shared().value(preference::convertVisible, false))
        ConverterController::sharedInstance().displayWithoutKey();
}

// ---- the desktop's requests

bool ShoalwatchDelegate::applicationOpenFile(const QString &path)
{
    return looksLikeTankFile(path) && m_shoalwatchController->documents().openFile(path);
}

bool ShoalwatchDelegate::applicationPrintFile(const QString &path)
{
    return applicationOpenFile(path) && m_shoalwatchController->printWindow(false);
}

void ShoalwatchDelegate::applicationWillBecomeActive()
{
    TankListController::sharedInstance().updateDisplay();
}

bool ShoalwatchDelegate::applicationShouldHandleReopen(bool hasVisibleWindows)
{
    if (!hasVisibleWindows)
        return true;
    MainWindow &window = m_shoalwatchController->window();
    if (window.isMinimized()) {
        window.showNormal();
        window.raise();
        window.activateWindow();
    }
    return false;
}

QMenu *ShoalwatchDelegate::applicationDockMenu() const
{
    return m_dockMenu->offeredMenu();
}

QMenu &ShoalwatchDelegate::dockMenu()
{
    return m_dockMenu->dockMenu();
}

void ShoalwatchDelegate::buildDockMenu()
{
    m_dockMenu->buildDockMenu();
}

// ---- quitting

void ShoalwatchDelegate::terminate()
{
    if (m_terminating)
        return; // the question is already on screen
    m_terminating = true;
    if (applicationShouldTerminate() == TerminateReply::Now)
        replyToApplicationShouldTerminate(true);
}

ShoalwatchDelegate::TerminateReply ShoalwatchDelegate::applicationShouldTerminate()
{
    finishTyping(m_shoalwatchController->mainWindow());
    if (!m_shoalwatchController->document().isEdited())
        return TerminateReply::Now;
    return m_shoalwatchController->documents().displayDocumentSaveBeforeQuit() ? TerminateReply::Now
                                                                               : TerminateReply::Later;
}

void ShoalwatchDelegate::replyToApplicationShouldTerminate(bool terminate)
{
    m_terminating = false;
    if (!terminate)
        return;
    applicationWillTerminate();
    QCoreApplication::exit(0);
}

void ShoalwatchDelegate::applicationWillTerminate()
{
    m_quitting = true;
    m_shoalwatchController->windowWillClose();
    Preferences::shared().flush();
}

// ---- commands

void ShoalwatchDelegate::undoChange()
{
    if (m_undoing)
        return;
    const QScopedValueRollback undoing(m_undoing, true);
    m_undoManager->undo();
}

void ShoalwatchDelegate::redoChange()
{
    if (m_undoing)
        return;
    const QScopedValueRollback undoing(m_undoing, true);
    m_undoManager->redo();
}

void ShoalwatchDelegate::showPreferences()
{
    PrefsController::sharedInstance().display();
}

void ShoalwatchDelegate::showHelp()
{
    brinemark::showHelp(m_shoalwatchController->views().helpAnchor());
}

void ShoalwatchDelegate::showAbout()
{
    auto *about = new QMessageBox(&m_shoalwatchController->window());
    about->setObjectName(QStringLiteral("aboutPanel"));
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setWindowTitle(text("AboutTitle"));
    about->setIconPixmap(QApplication::windowIcon().pixmap(QSize(64, 64), about->devicePixelRatio()));
    about->setText(QLatin1String(product::name) + u' ' + product::shortVersion());
    about->setInformativeText(text("AboutMessage"));
    about->open();
}

void ShoalwatchDelegate::showUpdate()
{
    QZUpdateController::sharedInstance().showScheduleWindow();
}

void ShoalwatchDelegate::displayEListSignUp()
{
    EListSignupController::sharedInstance().display();
}

void ShoalwatchDelegate::sendFeedback()
{
    const QString subject = QStringLiteral("%1 %2 feedback").arg(QLatin1String(product::name), product::buildVersion());
    const QUrl mail = desktop::mailUrl(QLatin1String(product::supportAddress), subject);
    performOpenURL(mail.toString(QUrl::FullyEncoded));
}

void ShoalwatchDelegate::productPage()
{
    performOpenURL(QLatin1String(product::productPage));
}

bool ShoalwatchDelegate::performOpenURL(const QString &url)
{
    return desktop::openUrlFrom(&m_shoalwatchController->window(), QUrl(url));
}

} // namespace brinemark

#include "moc_ShoalwatchDelegate.cpp"
