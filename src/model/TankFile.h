// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "base/saving/SafeFile.h"
#include "model/TankList.h"

#include <QString>

#include <functional>

namespace brinemark
{

/// A tank file as read into memory.
struct TankFileContent {
    bool ok = false;
    QString error; ///< for the log, when not ok
    plist::Dict root;
    FileStamp stamp; ///< what the file looked like when it was read
};

/// Reads a file as a property-list dictionary, without checking its tanks.
[[nodiscard]] TankFileContent readTankDictionary(const QString &path);

/// Whether a file may be offered for opening: the extension "xml" and the beginning of a property-list dictionary of
/// tanks, or of file attributes alone. Reads only the beginning of the file, so the file may be damaged all the same.
[[nodiscard]] bool looksLikeTankFile(const QString &path);

/// The root dictionary of a file with these tanks. `selectedRow` is the selected row of the tank tree, -1 for none.
/// Pictures that have not been converted to PNG in the background are converted first.
[[nodiscard]] plist::Dict tankFileDictionary(const TankList &tanks, int selectedRow, qint64 bundleVersion);

/// Serialises the dictionary and replaces the file by it in one step. On failure the old file is unchanged.
[[nodiscard]] WriteResult writeTankDictionary(const QString &path, const plist::Dict &root);

/// Questions and notices of readTanks(). Every callback may be empty.
struct TankFileCallbacks {
    std::function<bool()> wantsBackup;      ///< whether to keep a copy of a file of the older form
    std::function<void()> willReplaceTanks; ///< the tank list is about to be emptied
    std::function<void(const std::shared_ptr<Tank> &)> tankBuilt; ///< the tank was added to the list
    std::function<void(int tank, int tankCount)> progress;        ///< before each tank, counted from 0
};

/// The outcome of readTanks().
struct TankFileResult {
    bool ok = false; ///< every tank was built; if not, those before the failing one are in the list
    /// When ok: the file holds tanks or lists that its form keeps from being read, and saving over it would lose them.
    bool leftOut = false;
    /// "FileAttributes" is not a dictionary: nothing was read and the tank list is unchanged.
    bool refused = false;
    QString error; ///< for the log, when not ok
    int tanksBuilt = 0;
    int selectedRow = 0; ///< of the tank tree, as saved in the file
};

/// Replaces the list's tanks by those of a root dictionary. `path` is the file that it was read from, for the backup
/// copy.
TankFileResult readTanks(const plist::Dict &root, const QString &path, TankList &tanks,
                         const TankFileCallbacks &callbacks = {});

} // namespace brinemark
