// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/documents/MainDocumentHost.h"

#include "app/ShoalwatchController.h"
#include "app/tree/TankListController.h"
#include "app/window/MainViews.h"
#include "app/window/MainWindow.h"
#include "base/TableChecks.h"
#include "base/saving/SafeFile.h"
#include "base/text/Texts.h"
#include "journals/views/NotificationController.h"
#include "ui/Alerts.h"

#include <QFileInfo>
#include <QUndoStack>

#include <array>

namespace brinemark
{

namespace
{

/// What is said about the unsaved changes after a failed save, and the button that discards them.
struct FailedSaveTexts {
    SaveContext context;
    TextKey changes;
    TextKey discard;
};

constexpr std::array failedSaveTexts{
    FailedSaveTexts{SaveContext::None, "SaveErrorStillOpen"_key, {}},
    FailedSaveTexts{SaveContext::NewFile, "SaveErrorBeforeNew"_key, "SaveErrorDiscardNew"_key},
    FailedSaveTexts{SaveContext::OpenFile, "SaveErrorBeforeOpen"_key, "SaveErrorDiscardOpen"_key},
    FailedSaveTexts{SaveContext::Quit, "SaveErrorBeforeQuit"_key, "SaveErrorDiscardQuit"_key},
};
static_assert(rowsFollow<SaveContext>(failedSaveTexts, &FailedSaveTexts::context));

} // namespace

MainDocumentHost::MainDocumentHost(ShoalwatchController &main)
    : m_main(main)
{
}

void MainDocumentHost::showDocumentTitle(const QString &path)
{
    const QString name = path.isEmpty() ? text("UntitledFileName") : QFileInfo(path).fileName();
    m_main.window().setWindowFilePath(path);
    m_main.window().setWindowTitle(name + QStringLiteral("[*]"));
}

void MainDocumentHost::showEditedMark(bool edited)
{
    m_main.window().setWindowModified(edited);
    m_main.validate();
}

void MainDocumentHost::resetNotificationView()
{
    NotificationController::sharedInstance().resetView();
}

void MainDocumentHost::forgetRows()
{
    m_main.tankListController().forgetRows();
}

void MainDocumentHost::reloadTree()
{
    m_main.tankListController().reload();
}

void MainDocumentHost::fitTreeColumn()
{
    m_main.tankListController().fitColumn();
}

void MainDocumentHost::selectTreeRow(int row)
{
    m_main.tankListController().selectRow(row);
}

int MainDocumentHost::selectedTreeRow() const
{
    return m_main.tankListController().selectedRow();
}

void MainDocumentHost::refreshTree()
{
    m_main.tankListController().updateDisplay();
}

void MainDocumentHost::display()
{
    m_main.display();
}

void MainDocumentHost::showNotificationIfOnScreen()
{
    if (m_main.window().isVisible())
        NotificationController::sharedInstance().showIfNeeded();
}

void MainDocumentHost::updateColumnInfo()
{
    m_main.views().updateColumnInfo();
}

void MainDocumentHost::forgetUndo()
{
    m_main.undoManager().clear();
}

bool MainDocumentHost::askKeepBackupOfOlderFile()
{
    beep();
    Alert alert{AlertStyle::Critical,     text("ConvertTitle"),    text("ConvertMessage"),
                text("ConvertDuplicate"), text("ConvertContinue"), {}};
    // A copy is the careful answer, except in a run that nobody watches: that one saves nothing, so it writes no copy.
    if (!isUnattended())
        alert.cancels = AlertDefault;
    return runAlertPanel(&m_main.window(), alert) == AlertDefault;
}

DocumentHost::OverwriteAnswer MainDocumentHost::askBeforeOverwriting(const QString &path, OverwriteReason reason)
{
    const bool changed = reason == OverwriteReason::ChangedOnDisk;
    const Alert alert{AlertStyle::Critical,
                      text(changed ? "ChangedOnDiskTitle"_key : "NotFullyReadTitle"_key),
                      fillPlaceholders(text(changed ? "ChangedOnDiskMessage"_key : "NotFullyReadMessage"_key),
                                       {QFileInfo(path).fileName()}),
                      text("ChangedOnDiskSaveAs"),
                      text("ChangedOnDiskOverwrite"),
                      text("CancelLabel")};
    switch (runAlertPanel(&m_main.window(), alert)) {
    case AlertDefault:
        return OverwriteAnswer::SaveElsewhere;
    case AlertAlternate:
        return OverwriteAnswer::Overwrite;
    default:
        return OverwriteAnswer::Cancel;
    }
}

void MainDocumentHost::reportReadError()
{
    beep();
    runAlertPanel(&m_main.window(), {AlertStyle::Critical, text("Error"), text("ReadErrorMessage"), {}, {}, {}});
}

DocumentHost::FailedSaveAnswer MainDocumentHost::reportSaveError(const WriteResult &failure, SaveContext context)
{
    const FailedSaveTexts &texts = failedSaveTexts[std::size_t(context)];
    Alert alert{.style = AlertStyle::Critical,
                .title = text("Error"),
                .message = text("SaveErrorMessage") + u' ' + saveErrorText(failure) + QStringLiteral("\n\n") +
                           text(texts.changes)};
    if (context != SaveContext::None) {
        alert.defaultButton = text("CancelLabel");
        alert.alternateButton = text(texts.discard);
        alert.otherButton = text("ChangedOnDiskSaveAs");
        alert.cancels = AlertDefault;
    }
    switch (runAlertPanel(&m_main.window(), alert)) {
    case AlertAlternate:
        return FailedSaveAnswer::GoOn;
    case AlertOther:
        return FailedSaveAnswer::SaveElsewhere;
    default:
        return FailedSaveAnswer::Cancel;
    }
}

} // namespace brinemark
