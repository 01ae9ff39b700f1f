// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/SafeFile.h"
#include "base/plist/Value.h"

#include <QObject>
#include <QString>

namespace brinemark
{

class TankList;

/// What reading and writing the open file need of the window around it.
class DocumentHost
{
public:
    virtual ~DocumentHost() = default;

    virtual void showDocumentTitle(const QString &path) = 0; ///< the empty path is the untitled document
    virtual void showEditedMark(bool edited) = 0;
    virtual void resetNotificationView() = 0;
    virtual void forgetRows() = 0; ///< the tanks are about to go
    virtual void reloadTree() = 0; ///< rows open as the tanks' own flags say
    virtual void fitTreeColumn() = 0;
    virtual void selectTreeRow(int row) = 0;
    [[nodiscard]] virtual int selectedTreeRow() const = 0;
    virtual void refreshTree() = 0;
    virtual void display() = 0; ///< shows the window; an empty tree gets its first tank
    virtual void showNotificationIfOnScreen() = 0;
    virtual void updateColumnInfo() = 0; ///< the water-test table's layout goes into the tank while it is on screen
    virtual void forgetUndo() = 0;       ///< steps of a document that is gone

    /// The three questions and reports; each answers before it returns.
    virtual bool askKeepBackupOfOlderFile() = 0;
    enum class OverwriteAnswer { Overwrite, SaveElsewhere, Cancel };
    enum class OverwriteReason { ChangedOnDisk, NotFullyRead };
    virtual OverwriteAnswer askBeforeOverwriting(const QString &path, OverwriteReason reason) = 0;
    virtual void reportReadError() = 0;
    virtual void reportSaveError(const QString &path, const QString &reason) = 0;
};

/// The open tank file: its path, its unsaved changes, and how it is read and written. The tanks themselves are in the
/// list that the tank tree owns.
class TankDocument : public QObject
{
    Q_OBJECT

public:
    TankDocument(TankList &list, DocumentHost &host);

    /// Replaces the open document by the file; no path makes an empty untitled one and answers false. The path that is
    /// open already is not read again. False as well when the file cannot be read; the old tanks then stay.
    bool readTankFileWithPath(const QString &path);

    enum class WriteOutcome { Written, Failed, Cancelled, SaveElsewhere };
    /// Writes the whole document; a failure has been reported when this returns, and leaves the document edited.
    WriteOutcome writeTankFileWithPath(const QString &path);

    [[nodiscard]] const QString &representedFilename() const { return m_representedFilename; } ///< "" when untitled

    /// Unsaved changes. Unsigned, and taken below zero it wraps: the window then stays marked until the next read or
    /// write.
    [[nodiscard]] quint32 changeCount() const { return m_changeCount; }
    void documentModifiedWithChange(bool made);

    [[nodiscard]] bool isEdited() const { return m_edited; }
    void clearEditedMark() { setEdited(false); } ///< without touching the count

    /// The dictionary last read or written.
    [[nodiscard]] const plist::Dict &documentDictionary() const { return m_documentDictionary; }

    /// Whether the file's extension is hidden when it is written, where the platform can do that.
    bool hideExtensionWhenWriting = true;

private:
    void resetToUntitled();
    WriteOutcome askIfOverwritingLoses(const QString &path);
    void setRepresentedFilename(const QString &path);
    void setEdited(bool edited);
    void markUnchanged();

    TankList &m_list;
    DocumentHost &m_host;
    QString m_representedFilename;
    plist::Dict m_documentDictionary;
    FileStamp m_lastKnown;       ///< the file as last read or written
    bool m_notFullyRead = false; ///< the file holds more than the tanks in memory
    quint32 m_changeCount = 0;
    bool m_edited = false;
};

} // namespace brinemark
