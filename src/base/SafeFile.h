// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

class QSaveFile;

namespace brinemark
{

/// What a file looked like when it was last read or written, to tell whether somebody else has changed it since. Lives
/// as long as the process: the hash is a fast one that is not the same in another version of the toolkit.
struct FileStamp {
    qint64 size = -1;   ///< bytes; -1 when nothing is known
    QDateTime modified; ///< to the millisecond, UTC
    QByteArray hash;    ///< of the content; empty when not known

    [[nodiscard]] bool isKnown() const { return size >= 0; }

    /// Looks at the file and reads it for its hash. An unknown stamp when there is no such file.
    static FileStamp of(const QString &path);

    /// The stamp of content just read or written, which is not read again.
    static FileStamp of(const QString &path, const QByteArray &content);
};

/// Whether a file holds something else than what the stamp was made of. Another size says yes, the same size and time
/// stamp say no; only when the time alone differs the content is read and its hash decides. A file that is gone has not
/// changed in this sense: nothing can be lost by writing it. A file of which nothing is known has changed.
[[nodiscard]] bool changedOnDisk(const QString &path, const FileStamp &lastKnown);

/// A whole file in memory.
struct FileContent {
    bool ok = false;
    QString error; ///< the system's reason when not ok
    QByteArray bytes;
    FileStamp stamp;
};

/// Reads a whole file with the stamp that belongs to exactly these bytes.
[[nodiscard]] FileContent readFile(const QString &path);

/// What became of writing a file.
struct WriteResult {
    bool ok = false;
    QString error;   ///< the system's reason when not ok
    FileStamp stamp; ///< of what was written, when ok
};

/// Replaces a file so that at no moment there is no good one: a temporary file in the same folder, every write checked,
/// synced to disk, then renamed. Existing permissions stay; of a symbolic link the target is replaced. On failure the
/// old file stands untouched.
[[nodiscard]] WriteResult writeFileSafely(const QString &path, const QByteArray &bytes);

/// The same through a file object of the caller's, which is opened and committed (or cancelled) here.
[[nodiscard]] WriteResult writeFileSafely(QSaveFile &file, const QByteArray &bytes);

} // namespace brinemark
