// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TreeItem.h"

#include "ui/ContainerRooms.h"

namespace brinemark
{

TreeItem::TreeItem(ItemData &item)
{
    const std::optional<ContainerKind> kind = containerKindOf(item.itemContext());
    if (!item.tank || !kind)
        return;
    tank = item.tank;
    container = tank->container(*kind);
    record = &item;
}

bool *TreeItem::expandedFlag() const
{
    if (isTank())
        return &tank->tankExpanded;
    return isLivestockGroup() ? tank->expandedFlag(container->kind()) : nullptr;
}

QString TreeItem::name() const
{
    if (record)
        return record->name;
    if (container)
        return container->name();
    return tank ? tank->name : QString();
}

const char *TreeItem::iconName() const
{
    return container ? roomOf(container->kind()).icon : "TankSmall";
}

} // namespace brinemark
