// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/SafeFile.h"
#include "base/plist/Value.h"
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

/// Reads a file as a property-list dictionary. Nothing is said about its tanks yet.
[[nodiscard]] TankFileContent readTankDictionary(const QString &path);

/// Whether a file may be offered for opening: the extension "xml" and the beginning of a property-list dictionary of
/// tanks. Looks at the file's beginning only.
[[nodiscard]] bool looksLikeTankFile(const QString &path);

/// The root dictionary of the tanks in order. `selectedRow` is the tank tree's, -1 for none.
[[nodiscard]] plist::Dict tankFileDictionary(const TankList &tanks, int selectedRow, qint64 bundleVersion);

/// Serialises the dictionary and replaces the file by it in one step. A failure leaves the old file as it was.
[[nodiscard]] WriteResult writeTankDictionary(const QString &path, const plist::Dict &root);

/// What reading asks and tells on its way. Every callback may be left empty.
struct TankFileCallbacks {
    std::function<bool()> wantsBackup;                            ///< the file is of the older form: keep a copy of it?
    std::function<void()> willReplaceTanks;                       ///< the tank list is about to be emptied
    std::function<void(const std::shared_ptr<Tank> &)> tankBuilt; ///< the tank is in the list
    std::function<void(int tank, int tankCount)> progress;        ///< before each tank, counted from 0
};

/// What became of reading the tanks.
struct TankFileResult {
    bool ok = false; ///< every tank was built; if not, those before the failing one are in the list
    bool refused =
        false;     ///< nothing was read and the tank list is as it was: the file's own attributes are no dictionary
    QString error; ///< for the log, when not ok
    int tanksBuilt = 0;
    int selectedRow = 0; ///< of the tank tree when the file was saved
};

/// Replaces the list's tanks by those of a root dictionary. `path` is where it was read from, for the backup copy.
TankFileResult readTanks(const plist::Dict &root, const QString &path, TankList &tanks,
                         const TankFileCallbacks &callbacks = {});

} // namespace brinemark
