// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// The start-up steps that work on preferences and folders.
namespace brinemark::startup
{

/// Whether the program runs for the first time for this user: no value is stored for "autoSaveOnQuit".
[[nodiscard]] bool isFirstRun();

/// Stores the first-run values of the general preferences.
void writeFirstRunValues();

/// Removes the left-over folder that the text "FolderName" names, with all its contents, from the given folder. A plain
/// file of that name is kept; of a symbolic link to a folder, only the link is removed.
void applicationSupportFolderCheck(const QString &applicationSupportFolder);

/// The user's application-support folder.
[[nodiscard]] QString applicationSupportFolder();

/// The default tank file, or an empty path when none is set. When the stored path is not an existing file, it is
/// removed from the preferences.
[[nodiscard]] QString defaultFileExistsCheck();

/// Stores the version that is running.
void updatePreferenceFile();

} // namespace brinemark::startup
