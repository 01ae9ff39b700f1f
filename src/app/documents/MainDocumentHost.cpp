// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/documents/MainDocumentHost.h"

#include "app/ShoalwatchController.h"
#include "app/tree/TankListController.h"
#include "app/window/MainViews.h"
#include "app/window/MainWindow.h"
#include "base/text/Texts.h"
#include "journals/views/NotificationController.h"
#include "ui/Alerts.h"

#include <QFileInfo>
#include <QUndoStack>

namespace brinemark
{

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

void MainDocumentHost::reportSaveError()
{
    runAlertPanel(&m_main.window(), {AlertStyle::Critical, text("Error"), text("SaveErrorMessage"), {}, {}, {}});
}

} // namespace brinemark
