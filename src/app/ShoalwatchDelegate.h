// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"

#include <QObject>

class QMenu;
class QUndoStack;

namespace brinemark
{

class DockMenu;
class FishDataEntryController;
class NotificationController;
class ShoalwatchController;

/// The application delegate: runs the start-up, handles the desktop's requests to open files and to quit, owns the
/// shared undo manager and the dock menu, and performs the small application-wide commands.
class ShoalwatchDelegate : public QObject, public Shared<ShoalwatchDelegate>
{
    Q_OBJECT

public:
    ~ShoalwatchDelegate() override;

    /// Ends every shared instance of the program. Called once, while the application object still exists.
    static void destroyEverything();

    [[nodiscard]] QUndoStack &undoManager() const { return *m_undoManager; } ///< 20 levels

    // Start-up
    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    /// Unless a file is open already; an untitled document when there is no default file. False when it cannot be read.
    bool openDefaultFile();
    void showConverterIfWanted();

    // The desktop's requests
    bool applicationOpenFile(const QString &path); ///< false, without a message, for a file that is no tank file
    bool applicationPrintFile(const QString &path);
    void applicationWillBecomeActive();
    // Only a desktop with a dock sends these two.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    [[nodiscard]] QMenu *applicationDockMenu() const; ///< null while the menu has fewer than three items

    // Quitting
    void terminate(); ///< quits, after a question when there are unsaved changes
    void replyToApplicationShouldTerminate(bool terminate);

    [[nodiscard]] QMenu &dockMenu();
    void buildDockMenu();

    // Commands
    void undoChange();
    void redoChange();
    void showPreferences();
    void showHelp();
    void showAbout();
    void showUpdate();
    void displayEListSignUp();
    void sendFeedback();
    void productPage();
    bool performOpenURL(const QString &url);

private:
    friend class Shared<ShoalwatchDelegate>;
    ShoalwatchDelegate();

    enum class TerminateReply { Now, Later };
    TerminateReply applicationShouldTerminate();
    void applicationWillTerminate();
    void firstRun();
    void preferencesNotWritten();
    void reportUnsavedPreferences();
    void reportKeptCopies();

    ShoalwatchController *m_shoalwatchController = nullptr;
    FishDataEntryController *m_fishDataEntryController = nullptr;
    NotificationController *m_notificationController = nullptr;
    QUndoStack *m_undoManager;
    DockMenu *m_dockMenu;
    bool m_undoing = false;
    bool m_launched = false;           ///< the main window has been shown
    bool m_preferencesUnsaved = false; ///< before that, and not yet reported
    bool m_terminating = false;        ///< a request to quit is being answered
    bool m_quitting = false;           ///< it was answered with yes
};

} // namespace brinemark
