// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/documents/TankDocument.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QWidget;

namespace brinemark
{

struct FilePanelAnswer;
class PicturePreparation;

/// The commands of the File menu (new, open, save, save as and revert) and the questions they ask before unsaved
/// changes are lost. A command that comes while a save is being prepared waits until the save has ended.
class DocumentCommands : public QObject
{
    Q_OBJECT

public:
    using Context = SaveContext;

    /// `window` is the parent of the sheets. `replyToQuit` is called with the answer to a quit request that had to wait
    /// for the user.
    DocumentCommands(TankDocument &document, QWidget *window, std::function<void(bool terminate)> replyToQuit);
    ~DocumentCommands() override;

    void newDataFile();
    void openDataFile();
    /// Opens a file that the desktop handed over, after asking about unsaved changes. Returns false when the file could
    /// not be read, and true while the question is open.
    bool openFile(const QString &path);
    /// The same for a file of the recent ones, after checking that it is still a tank file; an empty path does nothing.
    void openRecentFile(const QString &path);
    void saveCurrentFile();
    void saveAsCurrentFile();
    void revertFile();

    /// Shows the save panel as a sheet; after saving, continues with the command named by the context.
    void saveTankFileWithContext(Context context);

    /// Saves or asks about unsaved changes before the program quits. Returns true when it can quit at once; otherwise
    /// `replyToQuit` is called with the answer.
    bool displayDocumentSaveBeforeQuit();

private:
    void askBeforeLosingChanges(Context context);
    void closeSaveBeforeNewFileSheet(int returnCode, Context context);
    void closeSaveBeforeQuitSheet(int returnCode);
    void openFileDidEnd(const FilePanelAnswer &answer);
    void savePanelDidEnd(const FilePanelAnswer &answer, Context context);
    void goOn(Context context);
    void openWithoutAsking();
    void writeToCurrentPath(Context context); ///< then continues with the command named by the context
    /// Calls `write` once the pictures are converted; calls the command named by the context off when the user cancels.
    void onceReadyToWrite(const QString &path, Context context, std::function<void()> write);
    void writeFromSavePanel(const QString &path, Context context);
    /// Whether the command named by the context goes on after a write. If not, it is called off, or waits for the save
    /// panel.
    bool mayGoOn(TankDocument::WriteOutcome outcome, Context context);

    TankDocument &m_document;
    QWidget *m_window;
    std::unique_ptr<PicturePreparation> m_pictures;
    std::function<void(bool)> m_replyToQuit;
    /// The file to open once the question about unsaved changes is answered; empty shows the open panel.
    QString m_handedOver;
    bool m_makeDefault = false; ///< the state in which the user last left the make-default box
};

} // namespace brinemark
