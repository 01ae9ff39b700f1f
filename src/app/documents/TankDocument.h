// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/documents/DocumentHost.h"
#include "base/plist/Value.h"
#include "base/saving/SafeFile.h"

#include <QObject>
#include <QString>

namespace brinemark
{

class TankList;

/// The open tank file: its path, its unsaved changes, and how it is read and written. The tanks themselves are in the
/// tank tree's list.
class TankDocument : public QObject
{
    Q_OBJECT

public:
    TankDocument(TankList &list, DocumentHost &host);

    /// Replaces the open document by the file. An empty path makes a new untitled document and returns false. The file
    /// that is already open is not read again. Returns false when reading fails; the document then has the new path all
    /// the same, with the old tanks if the file is not a tank file, or with the tanks before the damaged one; these
    /// count as unchanged.
    bool readTankFileWithPath(const QString &path);

    enum class WriteOutcome { Written, Failed, Cancelled, SaveElsewhere };
    /// Writes the whole document. A failure is reported to the user before this returns, and the document stays edited.
    /// `context` is the command that waits for the save: it goes on when the outcome is Written, or Failed, which then
    /// means that the user agreed to lose the changes.
    WriteOutcome writeTankFileWithPath(const QString &path, SaveContext context = SaveContext::None);

    [[nodiscard]] const TankList &tanks() const { return m_list; }
    [[nodiscard]] const QString &representedFilename() const { return m_representedFilename; } ///< empty when untitled

    /// The number of unsaved changes. It is unsigned: below zero it wraps, and the window then stays marked as edited
    /// until the next read or write.
    [[nodiscard]] quint32 changeCount() const { return m_changeCount; }
    void documentModifiedWithChange(bool made);

    [[nodiscard]] bool isEdited() const { return m_edited; }
    void clearEditedMark() { setEdited(false); } ///< leaves the change count unchanged

    /// The content of the file as last read or written. No caller yet.
    [[nodiscard]] const plist::Dict &documentDictionary() const { return m_documentDictionary; }

    /// Whether the file's extension is to be hidden when it is written, on platforms that support this. None that we
    /// build for does, so nothing reads it yet.
    bool hideExtensionWhenWriting = true;

private:
    void resetToUntitled();
    /// Asks before a write loses something that is only in the file; Overwrite as well when nothing would be lost.
    DocumentHost::OverwriteAnswer askIfOverwritingLoses(const QString &path);
    WriteOutcome reportFailedWrite(const WriteResult &failure, const QString &path, SaveContext context);
    void setRepresentedFilename(const QString &path);
    void setEdited(bool edited);
    void markUnchanged();
    void rememberFile() const; ///< among the recent files

    TankList &m_list;
    DocumentHost &m_host;
    QString m_representedFilename;
    plist::Dict m_documentDictionary;
    FileStamp m_lastKnown;       ///< state of the file when it was last read or written
    bool m_notFullyRead = false; ///< the file may hold more than was read
    quint32 m_changeCount = 0;
    bool m_edited = false;
};

} // namespace brinemark
