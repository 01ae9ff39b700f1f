// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// Finds the user's calendar application and the names of its calendars.
namespace brinemark::calendars
{

/// Whether a calendar application is installed.
[[nodiscard]] bool applicationInstalled();

/// The writable local calendars in the subfolders of a folder of sources: the "Title" of each "Info.plist" whose "Type"
/// is "com.apple.ical.sources.naivereadwrite". Returns nullopt when the path is not a folder, and an empty list when it
/// does not exist.
[[nodiscard]] std::optional<QStringList> readCalendarsPostTiger(const QString &sourcesFolder);

/// The calendars of the older sources file: the "Description" of every entry of its "SourcesView" whose "Type" is a
/// number other than 4. Returns nullopt when the path is a folder, cannot be read or lists no source.
[[nodiscard]] std::optional<QStringList> readCalendarsPreTiger(const QString &sourcesFile);

/// The local calendars of desktops that store each source as a key file ("*.source") in one folder.
[[nodiscard]] std::optional<QStringList> readCalendarsFromKeyFiles(const QString &sourcesFolder);

/// The names of the user's calendars, read in the way of this platform; nullopt when none could be read.
[[nodiscard]] std::optional<QStringList> read();

} // namespace brinemark::calendars
