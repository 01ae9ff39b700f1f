// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/documents/TankDocument.h"

#include "app/documents/RecentFiles.h"
#include "base/Log.h"
#include "base/Product.h"
#include "model/Tank.h"
#include "model/TankFile.h"
#include "model/TankList.h"
#include "ui/Alerts.h"
#include "ui/pictures/PictureConverter.h"

#include <QCursor>
#include <QGuiApplication>

namespace brinemark
{

namespace
{

/// Shows the waiting cursor during its lifetime; files may be many megabytes.
struct BusyCursor {
    BusyCursor() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor &) = delete;
    BusyCursor &operator=(const BusyCursor &) = delete;
};

} // namespace

TankDocument::TankDocument(TankList &list, DocumentHost &host)
    : m_list(list)
    , m_host(host)
{
}

void TankDocument::setRepresentedFilename(const QString &path)
{
    m_representedFilename = path;
    m_host.showDocumentTitle(path);
}

void TankDocument::setEdited(bool edited)
{
    m_edited = edited;
    m_host.showEditedMark(edited);
}

void TankDocument::markUnchanged()
{
    m_changeCount = 0;
    setEdited(false);
}

void TankDocument::rememberFile() const
{
    if (!isUnattended()) // a run that only draws or prints opens nothing for a person
        addRecentFile(m_representedFilename);
}

void TankDocument::documentModifiedWithChange(bool made)
{
    m_changeCount += made ? 1U : ~0U; // unsigned, so that a count below zero wraps instead of overflowing
    setEdited(m_changeCount != 0);
}

void TankDocument::resetToUntitled()
{
    setRepresentedFilename({});
    m_host.forgetRows();
    m_list.clear();
    m_host.forgetUndo();
    m_host.resetNotificationView();
    m_host.reloadTree();
    m_documentDictionary = {};
    m_lastKnown = {};
    m_notFullyRead = false;
    markUnchanged();
    m_host.display();
    m_host.fitTreeColumn();
}

bool TankDocument::readTankFileWithPath(const QString &path)
{
    if (path.isEmpty()) {
        resetToUntitled();
        return false;
    }
    if (path == m_representedFilename)
        return true;
    setRepresentedFilename(path);
    m_notFullyRead = true; // until the last tank is read, saving would lose the rest of the file
    BusyCursor busy;
    TankFileContent content = readTankDictionary(path);
    if (!content.ok) {
        qCWarning(logFile) << "cannot read" << path << content.error;
        m_host.fitTreeColumn();
        return false;
    }
    m_lastKnown = content.stamp;
    removeAbandonedTemporaryFiles(path);

    TankFileCallbacks callbacks;
    callbacks.wantsBackup = [this] { return m_host.askKeepBackupOfOlderFile(); };
    callbacks.willReplaceTanks = [&] {
        // No row may point to a tank that is about to be deleted.
        m_host.forgetRows();
        m_host.forgetUndo();
        m_host.resetNotificationView();
        m_documentDictionary = content.root;
    };
    const TankFileResult result = readTanks(content.root, path, m_list, callbacks);
    if (result.refused) { // a property list that is not a tank file; the old tanks are still there
        qCWarning(logFile) << "cannot read" << path << result.error;
        m_host.fitTreeColumn();
        return false;
    }
    m_host.reloadTree();
    if (!isUnattended()) // a run that nobody watches does not save
        PictureConverter::sharedInstance().convertLater(m_list);
    if (!result.ok) {
        qCWarning(logFile) << "cannot build the tanks of" << path << result.error;
        // Without a current tank the rows would be blank, also behind the report. Showing them is no change.
        m_host.fitTreeColumn();
        m_host.selectTreeRow(0);
        markUnchanged();
        m_host.reportReadError();
        return false;
    }
    m_notFullyRead = result.leftOut;
    m_host.fitTreeColumn();
    m_host.selectTreeRow(result.selectedRow);
    m_host.refreshTree();
    markUnchanged();
    rememberFile();
    m_host.showNotificationIfOnScreen();
    return true;
}

DocumentHost::OverwriteAnswer TankDocument::askIfOverwritingLoses(const QString &path)
{
    using Reason = DocumentHost::OverwriteReason;
    // When the path is that of another file, the save panel has already asked about overwriting it.
    if (path != m_representedFilename || !(m_notFullyRead || changedOnDisk(path, m_lastKnown)))
        return DocumentHost::OverwriteAnswer::Overwrite;
    return m_host.askBeforeOverwriting(path, m_notFullyRead ? Reason::NotFullyRead : Reason::ChangedOnDisk);
}

TankDocument::WriteOutcome TankDocument::reportFailedWrite(const WriteResult &failure, const QString &path,
                                                           SaveContext context)
{
    // The next save must not ask about a change that this one made.
    if (failure.stamp.isKnown() && path == m_representedFilename)
        m_lastKnown = failure.stamp;
    const auto answer = m_host.reportSaveError(failure, context);
    if (context == SaveContext::None || answer == DocumentHost::FailedSaveAnswer::GoOn)
        return WriteOutcome::Failed;
    return answer == DocumentHost::FailedSaveAnswer::SaveElsewhere ? WriteOutcome::SaveElsewhere
                                                                   : WriteOutcome::Cancelled;
}

TankDocument::WriteOutcome TankDocument::writeTankFileWithPath(const QString &path, SaveContext context)
{
    switch (askIfOverwritingLoses(path)) {
    case DocumentHost::OverwriteAnswer::Cancel:
        return WriteOutcome::Cancelled;
    case DocumentHost::OverwriteAnswer::SaveElsewhere:
        return WriteOutcome::SaveElsewhere;
    case DocumentHost::OverwriteAnswer::Overwrite:
        break;
    }
    m_host.updateColumnInfo();
    plist::Dict root =
        tankFileDictionary(m_list, m_host.selectedTreeRow(), product::packedVersion(product::shortVersion()));
    const BusyCursor busy;
    const WriteResult written = writeTankDictionary(path, root);
    if (!written.ok)
        return reportFailedWrite(written, path, context);
    m_lastKnown = written.stamp;
    m_notFullyRead = false;
    m_changeCount = 0;
    setRepresentedFilename(path);
    m_documentDictionary = std::move(root);
    setEdited(false);
    rememberFile();
    return WriteOutcome::Written;
}

} // namespace brinemark

#include "moc_TankDocument.cpp"
