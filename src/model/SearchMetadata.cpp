// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/SearchMetadata.h"

#include "model/Container.h"
#include "model/ItemData.h"
#include "model/KeyAccess.h"

namespace brinemark
{

QStringList livestockMetaArray(const Container &livestock)
{
    QStringList words;
    for (int i = 0; i < livestock.count(); ++i) {
        const auto item = std::static_pointer_cast<ItemData>(livestock.recordAt(i));
        words << item->name << item->sciName;
    }
    if (!livestock.isEmpty())
        words << livestock.name();
    return words;
}

QString journalMetaString(const Container &journal, QStringView key)
{
    constexpr int namedRecords = 5;
    QString words;
    for (int i = 0; i < std::min(namedRecords, journal.count()); ++i)
        words += valueForKey(*journal.recordAt(i), key).toString() + QLatin1String(", ");
    return words;
}

} // namespace brinemark
