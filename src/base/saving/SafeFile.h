// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/saving/FileStamp.h"

#include <QByteArray>
#include <QString>

namespace brinemark
{

/// Why a file could not be written, as far as a person can do something about it.
enum class SaveProblem {
    NoSpace,
    Quota,
    ReadOnly,
    NoPermission,
    DeviceError,
    PathGone,
    NameTooLong,
    NotAFile,
    TooLarge,
    NoSafeCopy, ///< the file has to be overwritten in place, and its content cannot be kept elsewhere meanwhile
    Other,
};

/// The outcome of writing a file.
struct WriteResult {
    /// What the file contains after a failure.
    enum class OnDisk {
        Old,     ///< what it contained before; there is no file if there was none
        New,     ///< the new content, but the system did not confirm that it would outlast a power failure
        Damaged, ///< perhaps parts of both; `keptCopy` is the old content
    };

    bool ok = false;
    QString error; ///< the call that failed and the system's reason, for the log; empty when ok
    SaveProblem problem = SaveProblem::Other;
    OnDisk onDisk = OnDisk::Old;
    QString keptCopy; ///< path of a copy of the old content, when the file is damaged
    FileStamp stamp;  ///< of the file, unless it contains what it did before

    explicit operator bool() const { return ok; }
};

/// Replaces a file such that a complete one exists at every moment: writes a temporary file in the same folder, syncs
/// it to the disk, renames it and syncs the folder; every call is checked.
///
/// Owner, group, permissions and extended attributes are kept where the system allows it. A symbolic link stays, and
/// its target is replaced. Other hard links to the file keep the old content. A file that may be written in a folder
/// that may not is written over, while a copy of the old content is kept elsewhere (see KeptCopies.h); its hard links
/// then get the new content as well.
///
/// A new file gets the attributes of the file `attributesOf`, if one is named.
[[nodiscard]] WriteResult writeFileSafely(const QString &path, const QByteArray &bytes,
                                          const QString &attributesOf = {});

/// A failure in a person's words: the reason, and what is on the disk now.
[[nodiscard]] QString saveErrorText(const WriteResult &failure);

/// Removes what killed processes of this user left beside the file while they saved it. What a process that still runs
/// is writing stays. Every save does this too.
void removeAbandonedTemporaryFiles(const QString &path);

} // namespace brinemark
