// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// The steps of start-up that work on the preferences and folders.
namespace brinemark::startup
{

/// Whether the program has never run for this user: nothing is stored for "autoSaveOnQuit".
[[nodiscard]] bool isFirstRun();

/// Stores the first-run values of the general preferences.
void writeFirstRunValues();

/// Clears away the left-over folder of the name "FolderName" in a folder, with all that is in it. A plain file of that
/// name stays; of a symbolic link only the link goes.
void applicationSupportFolderCheck(const QString &applicationSupportFolder);

/// The user's application-support folder.
[[nodiscard]] QString applicationSupportFolder();

/// The default tank file, or the empty path when none is set. A file that is gone, or a folder in its place, is
/// forgotten.
[[nodiscard]] QString defaultFileExistsCheck();

/// Records which version ran last.
void updatePreferenceFile();

} // namespace brinemark::startup
