// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/startup/StartupSteps.h"

#include "base/PreferenceKeys.h"
#include "base/Preferences.h"
#include "base/Product.h"
#include "base/text/Texts.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace brinemark::startup
{

bool isFirstRun()
{
    return !Preferences::shared().contains(preference::autoSaveOnQuit);
}

void writeFirstRunValues()
{
    Preferences &preferences = Preferences::shared();
    preferences.set(preference::activityOverdue, true);
    preferences.set(preference::convertVisible, false);
    preferences.set(preference::autoSaveOnQuit, false);
    preferences.set(preference::defaultFile, QString());
}

QString applicationSupportFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

void applicationSupportFolderCheck(const QString &applicationSupportFolder)
{
    const QString name = text("FolderName");
    // The folder is removed with all its contents, so make sure that the name is a single path component.
    if (applicationSupportFolder.isEmpty() || name.isEmpty() || name == u"." || name == u".." || name.contains(u'/') ||
        name.contains(u'\\'))
        return;
    const QFileInfo leftover(QDir(applicationSupportFolder), name);
    if (!leftover.isDir())
        return;
    if (leftover.isSymLink())
        QFile::remove(leftover.filePath());
    else
        QDir(leftover.filePath()).removeRecursively();
}

QString defaultFileExistsCheck()
{
    Preferences &preferences = Preferences::shared();
    const std::optional<QString> path = preferences.value(preference::defaultFile);
    if (!path)
        return {};
    if (QFileInfo(*path).isFile())
        return *path;
    preferences.remove(preference::defaultFile);
    return {};
}

void updatePreferenceFile()
{
    if (const quint32 version = product::packedVersion(product::shortVersion()))
        Preferences::shared().set(preference::bundleVersion, qint64(version));
}

} // namespace brinemark::startup
