// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/Preferences.h"

/// Every preference that the program stores.
namespace brinemark::preference
{

inline constexpr PreferenceKey<bool> autoSaveOnQuit{"autoSaveOnQuit"}; ///< absent on the program's first run
inline constexpr PreferenceKey<bool> activityOverdue{"activityOverdue"};
inline constexpr PreferenceKey<bool> convertVisible{"convertVisible"};
inline constexpr PreferenceKey<QString> defaultFile{"defaultFile"};     ///< absolute path
inline constexpr PreferenceKey<QStringList> recentFiles{"recentFiles"}; ///< absolute paths, the newest first
inline constexpr PreferenceKey<QString> calName{"CalName"};
inline constexpr PreferenceKey<qint64> bundleVersion{"bundleVersion"}; ///< as packedVersion() returns it
inline constexpr PreferenceKey<bool> updateAuto{"UpdateAuto"};
inline constexpr PreferenceKey<int> updateFrequency{"UpdateFrequency"}; ///< seconds; -1: check at every start-up
inline constexpr PreferenceKey<QDateTime> updateLastChecked{"UpdateLastChecked"};
inline constexpr PreferenceKey<float> notificationWindowHeight{"NotificationWindowHeight"}; ///< points
inline constexpr PreferenceKey<QString> mainViewWidth{"mainViewWidth"};           ///< a whole number of points as text
inline constexpr PreferenceKey<QString> tankListViewWidth{"tankListViewWidth"};   ///< a whole number of points as text
inline constexpr PreferenceKey<QString> mainWindowGeometry{"mainWindowGeometry"}; ///< QWidget::saveGeometry() in base64
inline constexpr PreferenceKey<QString> lastPanelFolder{"lastPanelFolder"};       ///< where a panel last chose a file
inline constexpr PreferenceKey<QVariantMap> convertWindowState{"ConvertWindowState"};
inline constexpr PreferenceKey<QVariantMap> toolbarConfiguration{"ToolbarConfiguration fishWindowToolbar2"};

/// The column layout of a list: this and the list's name name an array of columns, each with "identifier" and "width".
inline constexpr const char *tableColumnsPrefix = "TableColumns ";

[[nodiscard]] inline QString tableColumnsName(const QString &listName)
{
    return QLatin1String(tableColumnsPrefix) + listName;
}

/// The stored answer of an alert with "don't ask again" is an integer under this prefix and the alert's identifier.
inline constexpr const char *dontAskAgainPrefix = "dont.ask.again.result.";

[[nodiscard]] inline QString dontAskAgainName(const QString &identifier)
{
    return QLatin1String(dontAskAgainPrefix) + identifier;
}

} // namespace brinemark::preference
