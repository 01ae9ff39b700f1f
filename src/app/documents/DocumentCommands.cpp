// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/documents/DocumentCommands.h"

#include "app/documents/FilePanels.h"
#include "app/documents/PicturePreparation.h"
#include "base/PreferenceKeys.h"
#include "base/Preferences.h"
#include "base/text/Texts.h"
#include "ui/Alerts.h"
#include "ui/FinishTyping.h"

#include <QFileInfo>
#include <QWidget>

#include <utility>

namespace brinemark
{

namespace
{

Alert unsavedChangesAlert(TextKey title)
{
    return {AlertStyle::Critical, text(title),           text("SaveMessage"),
            text("SaveLabel"),    text("DontSaveLabel"), text("CancelLabel")};
}

} // namespace

DocumentCommands::DocumentCommands(TankDocument &document, QWidget *window, std::function<void(bool)> replyToQuit)
    : m_document(document)
    , m_window(window)
    , m_pictures(std::make_unique<PicturePreparation>(document.tanks(), window))
    , m_replyToQuit(std::move(replyToQuit))
{
}

DocumentCommands::~DocumentCommands() = default;

void DocumentCommands::newDataFile()
{
    if (m_pictures->delays([this] { newDataFile(); }))
        return;
    finishTyping(m_window);
    m_handedOver.clear();
    if (m_document.isEdited())
        askBeforeLosingChanges(Context::NewFile);
    else
        m_document.readTankFileWithPath({});
}

void DocumentCommands::openDataFile()
{
    if (m_pictures->delays([this] { openDataFile(); }))
        return;
    finishTyping(m_window);
    m_handedOver.clear(); // a file handed over earlier is still set when its opening was cancelled in the save panel
    if (m_document.isEdited())
        askBeforeLosingChanges(Context::OpenFile);
    else
        openWithoutAsking();
}

void DocumentCommands::openWithoutAsking()
{
    if (const QString path = std::exchange(m_handedOver, {}); !path.isEmpty()) {
        m_document.readTankFileWithPath(path);
        return;
    }
    beginOpenPanel(m_window, m_makeDefault, [this](const FilePanelAnswer &answer) { openFileDidEnd(answer); });
}

bool DocumentCommands::openFile(const QString &path)
{
    if (m_pictures->delays([this, path] { openFile(path); }))
        return true;
    finishTyping(m_window);
    if (!m_document.isEdited() || path == m_document.representedFilename())
        return m_document.readTankFileWithPath(path);
    m_handedOver = path;
    askBeforeLosingChanges(Context::OpenFile);
    return true;
}

void DocumentCommands::openRecentFile(const QString &path)
{
    if (!path.isEmpty() && checkTankFile(m_window, path))
        openFile(path);
}

void DocumentCommands::openFileDidEnd(const FilePanelAnswer &answer)
{
    m_makeDefault = answer.makeDefault;
    if (!answer.ok || answer.path.isEmpty())
        return;
    m_document.readTankFileWithPath(answer.path);
    if (m_makeDefault)
        Preferences::shared().set(preference::defaultFile, answer.path);
}

void DocumentCommands::askBeforeLosingChanges(Context context)
{
    beginAlertSheet(m_window, unsavedChangesAlert("SaveTitle"_key),
                    [this, context](int returnCode) { closeSaveBeforeNewFileSheet(returnCode, context); });
}

void DocumentCommands::closeSaveBeforeNewFileSheet(int returnCode, Context context)
{
    switch (returnCode) {
    case AlertDefault:
        if (m_document.representedFilename().isEmpty())
            saveTankFileWithContext(context);
        else
            writeToCurrentPath(context);
        break;
    case AlertAlternate:
        // The change count is not reset: when the open panel is then cancelled, the edits stay in memory, but the
        // window is no longer marked as edited.
        m_document.clearEditedMark();
        goOn(context);
        break;
    default:
        m_handedOver.clear();
        break;
    }
}

void DocumentCommands::goOn(Context context)
{
    switch (context) {
    case Context::None:
        break;
    case Context::NewFile:
        m_document.readTankFileWithPath({});
        break;
    case Context::OpenFile:
        openWithoutAsking(); // the user has decided about the changes
        break;
    case Context::Quit:
        m_replyToQuit(true);
        break;
    }
}

void DocumentCommands::onceReadyToWrite(const QString &path, Context context, std::function<void()> write)
{
    m_pictures->prepare(QFileInfo(path).fileName(), [this, context, write = std::move(write)](bool ready) {
        if (ready) {
            write();
            return;
        }
        m_handedOver.clear();
        if (context == Context::Quit)
            m_replyToQuit(false);
    });
}

void DocumentCommands::writeToCurrentPath(Context context)
{
    onceReadyToWrite(m_document.representedFilename(), context, [this, context] {
        if (mayGoOn(m_document.writeTankFileWithPath(m_document.representedFilename(), context), context))
            goOn(context);
    });
}

bool DocumentCommands::mayGoOn(TankDocument::WriteOutcome outcome, Context context)
{
    switch (outcome) {
    case TankDocument::WriteOutcome::Cancelled:
        m_handedOver.clear();
        if (context == Context::Quit)
            m_replyToQuit(false);
        return false;
    case TankDocument::WriteOutcome::SaveElsewhere:
        saveTankFileWithContext(context);
        return false;
    case TankDocument::WriteOutcome::Written:
    case TankDocument::WriteOutcome::Failed: // reported to the user, who gave up the changes
        break;
    }
    return true;
}

void DocumentCommands::saveCurrentFile()
{
    if (m_pictures->delays([this] { saveCurrentFile(); }))
        return;
    finishTyping(m_window);
    if (m_document.representedFilename().isEmpty())
        saveTankFileWithContext(Context::None);
    else
        writeToCurrentPath(Context::None);
}

void DocumentCommands::saveAsCurrentFile()
{
    if (m_pictures->delays([this] { saveAsCurrentFile(); }))
        return;
    finishTyping(m_window);
    saveTankFileWithContext(Context::None);
}

void DocumentCommands::saveTankFileWithContext(Context context)
{
    // The make-default box starts ticked as long as there is no default file.
    if (Preferences::shared().value(preference::defaultFile, QString()).isEmpty())
        m_makeDefault = true;
    beginSavePanel(m_window, text("FileName"), m_makeDefault,
                   [this, context](const FilePanelAnswer &answer) { savePanelDidEnd(answer, context); });
}

void DocumentCommands::savePanelDidEnd(const FilePanelAnswer &answer, Context context)
{
    m_makeDefault = answer.makeDefault;
    if (!answer.ok || answer.path.isEmpty()) {
        if (context == Context::Quit)
            m_replyToQuit(false);
        return;
    }
    onceReadyToWrite(answer.path, context, [this, path = answer.path, context] { writeFromSavePanel(path, context); });
}

void DocumentCommands::writeFromSavePanel(const QString &path, Context context)
{
    const TankDocument::WriteOutcome outcome = m_document.writeTankFileWithPath(path, context);
    if (!mayGoOn(outcome, context))
        return;
    if (m_makeDefault && outcome == TankDocument::WriteOutcome::Written) // a start without that file would look empty
        Preferences::shared().set(preference::defaultFile, path);
    goOn(context);
}

void DocumentCommands::revertFile()
{
    if (m_pictures->delays([this] { revertFile(); }))
        return;
    finishTyping(m_window);
    const QString path = m_document.representedFilename();
    const QString message = fillPlaceholders(text("RevertMessage"), {QFileInfo(path).fileName()});
    const Alert alert{AlertStyle::Critical, text("RevertTitle"), message, text("RevertLabel"), text("CancelLabel"), {}};
    if (runAlertPanel(m_window, alert) == AlertDefault)
        m_document.readTankFileWithPath(path);
}

bool DocumentCommands::displayDocumentSaveBeforeQuit()
{
    const auto askAgain = [this] {
        if (!m_document.isEdited() || displayDocumentSaveBeforeQuit())
            m_replyToQuit(true);
    };
    if (m_pictures->delays(askAgain))
        return false;
    const bool hasPath = !m_document.representedFilename().isEmpty();
    if (Preferences::shared().value(preference::autoSaveOnQuit, false) && hasPath) {
        writeToCurrentPath(Context::Quit);
        return false;
    }
    if (!m_document.isEdited())
        return true;
    m_window->raise();
    m_window->activateWindow();
    beginAlertSheet(m_window, unsavedChangesAlert("SaveQuitTitle"_key),
                    [this](int returnCode) { closeSaveBeforeQuitSheet(returnCode); });
    return false;
}

void DocumentCommands::closeSaveBeforeQuitSheet(int returnCode)
{
    switch (returnCode) {
    case AlertDefault:
        if (m_document.representedFilename().isEmpty())
            saveTankFileWithContext(Context::Quit);
        else
            writeToCurrentPath(Context::Quit);
        break;
    case AlertAlternate:
        m_replyToQuit(true);
        break;
    default:
        m_replyToQuit(false);
        break;
    }
}

} // namespace brinemark

#include "moc_DocumentCommands.cpp"
