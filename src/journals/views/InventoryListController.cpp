// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/InventoryListController.h"

#include "model/Tank.h"
#include "ui/MenuTags.h"

#include <array>

namespace brinemark
{

namespace
{

constexpr auto inventoryColumns = std::to_array<RecordColumn>({
    {.identifier = u"item", .header = "ColumnItem"_key, .width = 360},
    {.identifier = u"count", .header = "ColumnCount"_key, .kind = ColumnKind::Number},
});

constexpr std::array inventoryMenu{newListItem, deleteListItem(menutag::InventorySelected)};

constexpr RecordListTraits inventoryTraits{
    .kind = ContainerKind::Inventory,
    .itemKey = "InventoryItem"_key,
    .emptySentenceKey = "EmptyInventory"_key,
    .makeRecord = &makeNewRecord<InventoryData>,
    .deletingCountsAChange = false,
    .columns = inventoryColumns,
    .layoutName = "InventoryList",
    .menuName = "inventoryCM",
    .menu = inventoryMenu,
};

} // namespace

InventoryListController::InventoryListController()
    : RecordListController(inventoryTraits)
{
}

} // namespace brinemark

#include "moc_InventoryListController.cpp"
