#include "app/tree/TreeItem.h"

#include <array>

namespace brinemark
{

namespace
{

struct RowIcons {
    ContainerKind kind;
    const char *icon;
};

constexpr std::array<RowIcons, containerCount> rowIcons{{
    {ContainerKind::Fish, "FishSmall"},
    {ContainerKind::Plant, "PlantSmall"},
    {ContainerKind::Invert, "InvertebratesSmall"},
    {ContainerKind::Coral, "CoralSmall"},
    {ContainerKind::Condition, "ConditionsSmall"},
    {ContainerKind::Schedule, "ScheduleSmall"},
    {ContainerKind::Inventory, "InventorySmall"},
    {ContainerKind::Expense, "ExpensesSmall"},
    {ContainerKind::Note, "NotesSmall"},
}};

} // namespace

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
    return container ? rowIcons[std::size_t(container->kind())].icon : "TankSmall";
}

} // namespace brinemark
