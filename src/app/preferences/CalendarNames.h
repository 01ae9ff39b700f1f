// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The user's calendar application and the calendars that it keeps.
namespace brinemark::calendars
{

/// Whether a calendar application is there at all.
[[nodiscard]] bool applicationInstalled();

/// The writable local calendars below a folder of sources: each "Info.plist" whose "Type" is
/// "com.apple.ical.sources.naivereadwrite" gives its "Title". Nothing when the path is there but is no folder; an empty
/// list when it is absent.
[[nodiscard]] std::optional<QStringList> readCalendarsPostTiger(const QString &sourcesFolder);

/// The calendars of the older sources file: the "Description" of every entry of its "SourcesView" whose "Type" is a
/// number other than 4. Nothing when the path is a folder or cannot be read, or when it names no source.
[[nodiscard]] std::optional<QStringList> readCalendarsPreTiger(const QString &sourcesFile);

/// The local calendars of a desktop that keeps one key file a source in a folder ("*.source").
[[nodiscard]] std::optional<QStringList> readCalendarsFromKeyFiles(const QString &sourcesFolder);

/// The names of the user's calendars by whatever way this platform has; nothing when none could be read.
[[nodiscard]] std::optional<QStringList> read();

} // namespace brinemark::calendars
