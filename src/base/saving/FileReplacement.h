// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/saving/FileCalls.h"

#include <QString>

namespace brinemark
{

/// Replaces a file by a new one that is written beside it. The new file has a name by which the program knows it as its
/// own, and is locked until it has replaced the old one: an unlocked file of such a name belongs to a process that was
/// killed. Whatever happens, it is removed at the end of this object's life.
class FileReplacement
{
public:
    FileReplacement(FileCalls &calls, const QString &target);
    ~FileReplacement();
    Q_DISABLE_COPY_MOVE(FileReplacement)

    /// The calls that need permission to write to the folder, as FailedCall names them.
    static constexpr char createCall[] = "create";
    static constexpr char renameCall[] = "rename";

    /// Writes the file and replaces the target. The new file gets the attributes of `attributesOf`, if a file is named.
    [[nodiscard]] FailedCall write(const QByteArray &bytes, const QString &attributesOf);

    /// Whether the target is the new file now. It can be so after a failure as well: of the last call.
    [[nodiscard]] bool isDone() const { return m_done; }

    /// Removes the new files of killed processes of this user from a folder.
    static void removeAbandoned(FileCalls &calls, const QString &folder);

private:
    [[nodiscard]] FailedCall create(FileCalls::Mode mode);
    [[nodiscard]] bool isLockedAndThere();
    [[nodiscard]] int renameToTarget();
    void discard();

    FileCalls &m_calls;
    QString m_target;
    QString m_folder;
    QString m_path; ///< of the new file; empty while there is none
    OpenFile m_file;
    OpenFile m_lock; ///< a copy of the descriptor, which keeps the lock after the file is closed
    bool m_done = false;
};

} // namespace brinemark
