// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace brinemark
{

struct FilePanelAnswer;
class TankDocument;

/// The File menu: new, open, save, save as and revert, and the questions that are asked before unsaved changes are
/// lost.
class DocumentCommands : public QObject
{
    Q_OBJECT

public:
    /// What is to happen after a save that one of these commands asked for.
    enum class Context { None, NewFile, OpenFile, Quit };

    /// `window` carries the sheets. `replyToQuit` takes the answer to a quit that was put off for a question.
    DocumentCommands(TankDocument &document, QWidget *window, std::function<void(bool terminate)> replyToQuit);

    void newDataFile();
    void openDataFile();
    /// Opens a file that the desktop handed over; asks about unsaved changes first. False when it could not be read.
    bool openFile(const QString &path);
    void saveCurrentFile();
    void saveAsCurrentFile();
    void revertFile();

    /// Shows the save panel as a sheet; its completion goes on with what the context names.
    void saveTankFileWithContext(Context context);

    /// Asks, or writes without a question, before the program quits. True when nothing stands in the way; otherwise the
    /// answer is given through `replyToQuit`.
    bool displayDocumentSaveBeforeQuit();

private:
    void askBeforeLosingChanges(Context context);
    void closeSaveBeforeNewFileSheet(int returnCode, Context context);
    void closeSaveBeforeQuitSheet(int returnCode);
    void openFileDidEnd(const FilePanelAnswer &answer);
    void savePanelDidEnd(const FilePanelAnswer &answer, Context context);
    void goOn(Context context);
    void goOnOpening();
    bool writeToCurrentPath(Context context);

    TankDocument &m_document;
    QWidget *m_window;
    std::function<void(bool)> m_replyToQuit;
    QString m_handedOver;       ///< the file to open once unsaved changes have been dealt with; empty: ask for one
    bool m_makeDefault = false; ///< the make-default box, as the user last left it
};

} // namespace brinemark
