// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/saving/FileCalls.h"

#include <QString>
#include <QStringList>

namespace brinemark
{

/// The folder for copies of files that are being written over: "Brinemark/kept-copies" in the user's folder for
/// application state.
[[nodiscard]] QString keptCopiesFolder();

/// A copy of a file's old content, made before the file is written over. It is removed at the end of this object's
/// life, unless keep() was called. When the process is killed before, the copy stays under a name that begins with
/// "unfinished".
class KeptCopy
{
public:
    explicit KeptCopy(FileCalls &calls);
    ~KeptCopy();
    Q_DISABLE_COPY_MOVE(KeptCopy)

    /// Writes the bytes to a new file, named after the time and `fileName`, and reads them back from it.
    [[nodiscard]] FailedCall make(const QString &fileName, const QByteArray &bytes);

    /// Leaves the copy and returns its path.
    [[nodiscard]] QString keep();

private:
    FileCalls &m_calls;
    QString m_path;
    OpenFile m_file; ///< locked as long as the copy is needed
};

/// Finds the copies that killed processes left, and renames them so that they are found only once. Returns their paths.
[[nodiscard]] QStringList takeAbandonedCopies();

} // namespace brinemark
