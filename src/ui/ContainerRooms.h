// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"
#include "model/ContainerKind.h"
#include "ui/MainView.h"

#include <array>

namespace brinemark
{

/// How a container is shown: its small picture (see ui/Icons.h) and the view that its row in the tank tree opens.
struct ContainerRoom {
    ContainerKind kind;
    const char *icon;
    MainView view;
};

// clang-format off
inline constexpr std::array<ContainerRoom, containerCount> containerRooms{{
    {ContainerKind::Fish,      "FishSmall",          MainView::LivestockGroup},
    {ContainerKind::Plant,     "PlantSmall",         MainView::LivestockGroup},
    {ContainerKind::Invert,    "InvertebratesSmall", MainView::LivestockGroup},
    {ContainerKind::Coral,     "CoralSmall",         MainView::LivestockGroup},
    {ContainerKind::Condition, "ConditionsSmall",    MainView::Conditions},
    {ContainerKind::Schedule,  "ScheduleSmall",      MainView::Schedule},
    {ContainerKind::Inventory, "InventorySmall",     MainView::Inventory},
    {ContainerKind::Expense,   "ExpensesSmall",      MainView::Expenses},
    {ContainerKind::Note,      "NotesSmall",         MainView::Notes},
}};
// clang-format on
static_assert(rowsFollow<ContainerKind>(containerRooms, &ContainerRoom::kind),
              "containerRooms needs one row for each ContainerKind, in its order");

[[nodiscard]] constexpr const ContainerRoom &roomOf(ContainerKind kind)
{
    return containerRooms[std::size_t(kind)];
}

} // namespace brinemark
