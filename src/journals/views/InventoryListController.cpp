// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/InventoryListController.h"

#include "model/Tank.h"

namespace brinemark
{

namespace
{

constexpr std::array<RecordColumn, 2> columns{{
    {u"item", "ColumnItem"_key, ColumnKind::Text, 0, Qt::AlignLeft, 360},
    {u"count", "ColumnCount"_key, ColumnKind::Number},
}};

constexpr RecordListTraits traits{
    ContainerKind::Inventory, "InventoryItem"_key, "EmptyInventory"_key, &makeNewRecord<InventoryData>, false, columns,
};

} // namespace

InventoryListController::InventoryListController()
    : RecordListController(traits)
{
}

} // namespace brinemark
