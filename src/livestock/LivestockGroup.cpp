// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/LivestockGroup.h"

#include "model/Container.h"
#include "model/ItemData.h"

namespace brinemark
{

const LivestockGroupTraits *livestockGroupTraits(ContainerKind kind)
{
    for (const LivestockGroupTraits &traits : livestockGroupTable) {
        if (traits.kind == kind)
            return &traits;
    }
    return nullptr;
}

const LivestockGroupTraits &livestockGroupForContext(ItemContext context)
{
    const LivestockGroupTraits *fish = &livestockGroupTable.front();
    for (const LivestockGroupTraits &traits : livestockGroupTable) {
        if (traits.context == context)
            return traits;
    }
    return *fish;
}

qint64 specimenCount(const Container &livestock)
{
    qint64 count = 0;
    for (int i = 0; i < livestock.count(); ++i)
        count += static_cast<const ItemData &>(*livestock.recordAt(i)).count;
    return count;
}

} // namespace brinemark
