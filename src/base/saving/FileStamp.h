// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

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

} // namespace brinemark
