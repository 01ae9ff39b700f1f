#include "journals/views/InventoryListController.h"

namespace brinemark
{

InventoryListController::InventoryListController()
    : RecordListController(
          {ContainerKind::Inventory, "InventoryItem"_key, "EmptyInventory"_key, "InventorySmall", nullptr})
{
}
std::span<const RecordColumn> InventoryListController::columnsFor(Tank *)
{
    return {};
}

} // namespace brinemark
