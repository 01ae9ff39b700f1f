// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

class QSaveFile;

namespace brinemark
{

/// Size, time and hash of a file when it was last read or written, to detect changes by other programs. Not to be
/// stored: the hash function may differ in another version of the toolkit.
struct FileStamp {
    qint64 size = -1;   ///< bytes; -1 in an unknown stamp
    QDateTime modified; ///< to the millisecond, UTC
    QByteArray hash;    ///< of the content; empty when not known

    [[nodiscard]] bool isKnown() const { return size >= 0; }

    /// Reads the file to make its stamp. An unknown stamp when there is no such file.
    static FileStamp of(const QString &path);

    /// The stamp of a file whose content was just read or written; the file is not read again.
    static FileStamp of(const QString &path, const QByteArray &content);
};

/// Whether the file's content differs from the content that the stamp describes. A different size means yes, equal size
/// and time mean no; when only the time differs, the file is read and the hashes are compared. A file that no longer
/// exists counts as unchanged, since writing it loses nothing. An existing file with an unknown stamp counts as
/// changed.
[[nodiscard]] bool changedOnDisk(const QString &path, const FileStamp &lastKnown);

/// A whole file in memory.
struct FileContent {
    bool ok = false;
    QString error; ///< the system's reason when not ok
    QByteArray bytes;
    FileStamp stamp;
};

/// Reads a whole file and makes the stamp from the bytes that were read.
[[nodiscard]] FileContent readFile(const QString &path);

/// The outcome of writing a file.
struct WriteResult {
    bool ok = false;
    QString error;   ///< the system's reason when not ok
    FileStamp stamp; ///< of the written file, when ok
};

/// Replaces a file such that a complete one exists at every moment: writes a temporary file in the same folder, checks
/// every write, syncs it to disk, then renames it. Permissions are kept; a symbolic link stays, and its target is
/// replaced. On failure the old file is unchanged.
[[nodiscard]] WriteResult writeFileSafely(const QString &path, const QByteArray &bytes);

/// The same through the caller's file object, which this function opens and then commits or cancels.
[[nodiscard]] WriteResult writeFileSafely(QSaveFile &file, const QByteArray &bytes);

} // namespace brinemark
