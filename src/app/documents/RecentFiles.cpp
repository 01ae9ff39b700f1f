// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/documents/RecentFiles.h"

#include "base/PreferenceKeys.h"
#include "base/Preferences.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr qsizetype mostFiles = 10;

/// The file's name and the last `folders` folders of its path.
QString nameOfFile(const QString &path, qsizetype folders)
{
    const QStringList parts = path.split(u'/', Qt::SkipEmptyParts);
    if (folders == 0 || parts.size() < 2)
        return parts.value(parts.size() - 1);
    return parts.last() + QStringLiteral(" – ") +
           QDir::toNativeSeparators(parts.sliced(0, parts.size() - 1).mid(parts.size() - 1 - folders).join(u'/'));
}

} // namespace

QStringList recentFiles()
{
    return Preferences::shared().value(preference::recentFiles, {});
}

void addRecentFile(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = recentFiles();
    files.removeAll(absolute);
    files.prepend(absolute);
    Preferences::shared().set(preference::recentFiles, files.mid(0, mostFiles));
}

void clearRecentFiles()
{
    Preferences::shared().remove(preference::recentFiles);
}

QStringList namesOfFiles(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths) {
        const auto isShared = [&](qsizetype folders) {
            const QString name = nameOfFile(path, folders);
            return std::any_of(paths.begin(), paths.end(), [&](const QString &other) {
                return other != path && nameOfFile(other, folders) == name;
            });
        };
        qsizetype folders = 0;
        while (folders < path.count(u'/') && isShared(folders))
            ++folders;
        names << nameOfFile(path, folders);
    }
    return names;
}

} // namespace brinemark
