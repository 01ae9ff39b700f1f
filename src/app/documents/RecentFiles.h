// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

namespace brinemark
{

/// The tank files that were opened or saved last: absolute paths, the newest first, at most ten. The preferences keep
/// them, so that every window of the next start knows them.
[[nodiscard]] QStringList recentFiles();
void addRecentFile(const QString &path); ///< puts it first; a path that is there already moves
void clearRecentFiles();

/// A name for each of these files: the file's name, followed by as many of its folders as tell it from another file of
/// the same name ("tanks.xml – backup").
[[nodiscard]] QStringList namesOfFiles(const QStringList &paths);

} // namespace brinemark
