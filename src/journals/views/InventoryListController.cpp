// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/InventoryListController.h"

#include "model/Tank.h"

namespace brinemark
{

namespace
{

constexpr std::array<RecordColumn, 2> inventoryColumns{{
    {u"item", "ColumnItem"_key, ColumnKind::Text, 0, Qt::AlignLeft, 360},
    {u"count", "ColumnCount"_key, ColumnKind::Number},
}};

constexpr RecordListTraits inventoryTraits{
    ContainerKind::Inventory, "InventoryItem"_key, "EmptyInventory"_key, &makeNewRecord<InventoryData>, false,
    inventoryColumns,
};

} // namespace

InventoryListController::InventoryListController()
    : RecordListController(inventoryTraits)
{
}

} // namespace brinemark

#include "moc_InventoryListController.cpp"
