// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/preferences/CalendarNames.h"

#include "base/plist/XmlReader.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace brinemark::calendars
{

namespace
{

constexpr char16_t localWritable[] = u"com.apple.ical.sources.naivereadwrite";
constexpr qint64 subscribedType = 4;

plist::Value readPropertyList(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return plist::readXml(file.readAll()).value;
}

const QString *stringAt(const plist::Dict &dict, QStringView key)
{
    const plist::Value *value = dict.find(key);
    return value ? value->string() : nullptr;
}

std::optional<double> numberAt(const plist::Dict &dict, QStringView key)
{
    const plist::Value *value = dict.find(key);
    if (!value)
        return {};
    if (const qint64 *integer = value->integer())
        return double(*integer);
    if (const double *real = value->real())
        return *real;
    return {};
}

} // namespace

std::optional<QStringList> readCalendarsPostTiger(const QString &sourcesFolder)
{
    const QFileInfo folder(sourcesFolder);
    if (folder.exists() && !folder.isDir())
        return {};
    QStringList titles;
    QDirIterator files(sourcesFolder, {QStringLiteral("Info.plist")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const plist::Value root = readPropertyList(files.next());
        const plist::Dict *source = root.dict();
        if (!source)
            continue;
        const QString *title = stringAt(*source, u"Title");
        const QString *type = stringAt(*source, u"Type");
        if (title && type && *type == localWritable)
            titles += *title;
    }
    return titles;
}

std::optional<QStringList> readCalendarsPreTiger(const QString &sourcesFile)
{
    if (QFileInfo(sourcesFile).isDir())
        return {};
    const plist::Value root = readPropertyList(sourcesFile);
    const plist::Value *view = root.dict() ? root.dict()->find(u"SourcesView") : nullptr;
    const plist::Dict *sources = view ? view->dict() : nullptr;
    if (!sources || sources->empty())
        return {};
    QStringList names;
    for (const auto &[key, value] : *sources) {
        const plist::Dict *source = value.dict();
        if (!source)
            continue;
        const std::optional<double> type = numberAt(*source, u"Type");
        const QString *description = stringAt(*source, u"Description");
        if (type && qint64(*type) != subscribedType && description)
            names += *description;
    }
    return names;
}

std::optional<QStringList> readCalendarsFromKeyFiles(const QString &sourcesFolder)
{
    const QDir folder(sourcesFolder);
    if (!folder.exists())
        return {};
    QStringList names;
    for (const QFileInfo &file : folder.entryInfoList({QStringLiteral("*.source")}, QDir::Files, QDir::Name)) {
        const QSettings source(file.filePath(), QSettings::IniFormat);
        const bool enabled = source.value(QStringLiteral("Data Source/Enabled"), true).toBool();
        const QString backend = source.value(QStringLiteral("Calendar/BackendName")).toString();
        const QString name = source.value(QStringLiteral("Data Source/DisplayName")).toString();
        if (enabled && backend == u"local" && !name.isEmpty())
            names += name;
    }
    return names;
}

#ifdef Q_OS_MACOS

bool applicationInstalled()
{
    return QFileInfo::exists(QStringLiteral("/System/Applications/Calendar.app")) ||
           QFileInfo::exists(QStringLiteral("/Applications/iCal.app"));
}

std::optional<QStringList> read()
{
    const QString library = QDir::homePath() + QStringLiteral("/Library/");
    const auto names = readCalendarsPostTiger(library + QStringLiteral("Application Support/iCal/Sources/"));
    return names && !names->isEmpty()
               ? names
               : readCalendarsPreTiger(library + QStringLiteral("Preferences/com.apple.iCal.sources.plist"));
}

#else

bool applicationInstalled()
{
    // Calendars are supported if a desktop entry handles calendar files. The cache lists these entries, so that no
    // process has to be started.
    const QStringList lists =
        QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, QStringLiteral("mimeinfo.cache"));
    for (const QString &list : lists) {
        QFile file(list);
        if (file.open(QIODevice::ReadOnly) && file.readAll().contains("\ntext/calendar="))
            return true;
    }
    return false;
}

std::optional<QStringList> read()
{
    return readCalendarsFromKeyFiles(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                     QStringLiteral("/evolution/sources"));
}

#endif

} // namespace brinemark::calendars
