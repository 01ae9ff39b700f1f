// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Log.h"
#include "model/ModelContext.h"
#include "model/PlistField.h"
#include "model/Tank.h"
#include "model/TankFile.h"
#include "model/TankFileKeys.h"
#include "model/TankReadError.h"

#include <QFileInfo>

namespace brinemark
{

namespace
{

/// Copies the file to another name in the same folder. An existing copy is kept, because it holds the older state.
void keepBackup(const QString &path)
{
    const QFileInfo info(path);
    const QString backup = info.path() + u'/' + text("ConvertBackup"_key) + u' ' + info.fileName();
    const FileContent content = QFileInfo::exists(backup) ? FileContent() : readFile(path);
    if (!content.ok || !writeFileSafely(backup, content.bytes, path))
        qCInfo(logFile, "no backup copy was made at %ls", qUtf16Printable(backup));
}

int selectedRowOf(const plist::Dict &attributes)
{
    const plist::Value *row = attributes.find(tankfile::selectedRowKey);
    try {
        return row ? plistfield::integerOf(*row, tankfile::selectedRowKey) : 0;
    } catch (const TankReadError &) {
        return 0; // an invalid row must not make the file unreadable
    }
}

bool leavesOut(const plist::Value &tank)
{
    const plist::Array *older = tank.array();
    return older && Tank::fromArrayLeavesOut(*older);
}

std::shared_ptr<Tank> buildTank(const plist::Value *entry, const plist::Value *bundleVersion)
{
    if (!entry)
        throw TankReadError(QStringLiteral("the tank is missing"));
    if (const plist::Dict *dict = entry->dict()) {
        if (!bundleVersion)
            throw TankReadError(QStringLiteral("a tank of the current form in a file without a version"));
        plist::Dict versioned = *dict;
        versioned.insert(tankfile::bundleVersionKey, *bundleVersion);
        return Tank::fromDict(versioned);
    }
    return Tank::fromArray(plistfield::arrayOf(*entry, u"tank"));
}

} // namespace

TankFileResult readTanks(const plist::Dict &root, const QString &path, TankList &tanks,
                         const TankFileCallbacks &callbacks)
{
    TankFileResult result;
    static const plist::Dict none;
    const plist::Value *found = root.find(tankfile::fileAttributesKey);
    if (found && !found->dict()) {
        result.refused = true;
        result.error = QStringLiteral("the file's attributes are no dictionary");
        return result;
    }
    const plist::Dict &attributes = found ? *found->dict() : none;
    const plist::Value *bundleVersion = attributes.find(tankfile::bundleVersionKey);
    result.selectedRow = selectedRowOf(attributes);

    if (!bundleVersion && callbacks.wantsBackup && callbacks.wantsBackup())
        keepBackup(path);

    if (callbacks.willReplaceTanks)
        callbacks.willReplaceTanks();
    tanks.clear();
    // One entry is taken to be the attributes, so a file without them loses its last tank.
    const int tankCount = int(root.size()) - 1;
    for (int position = 1; position <= tankCount; ++position) {
        if (callbacks.progress)
            callbacks.progress(position - 1, tankCount);
        std::shared_ptr<Tank> tank;
        try {
            const plist::Value *entry = root.find(tankfile::tankKey(position));
            tank = buildTank(entry, bundleVersion);
            result.leftOut = result.leftOut || leavesOut(*entry);
        } catch (const TankReadError &error) {
            result.error =
                QStringLiteral("tank %1: %2").arg(QString::number(position), QString::fromUtf8(error.what()));
            qCWarning(logFile, "%ls", qUtf16Printable(result.error));
            return result;
        }
        tanks.append(tank);
        ++result.tanksBuilt;
        if (callbacks.tankBuilt)
            callbacks.tankBuilt(tank);
    }
    result.leftOut = result.leftOut || (!found && !root.empty());
    result.ok = true;
    return result;
}

} // namespace brinemark
