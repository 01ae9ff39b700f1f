// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"
#include "base/text/Texts.h"
#include "model/ItemContext.h"

#include <QStringView>

#include <array>
#include <optional>

namespace brinemark
{

struct Record;

/// The nine containers of a tank in the fixed order of its `tankItemsArray`.
enum class ContainerKind { Fish, Plant, Invert, Coral, Condition, Schedule, Inventory, Expense, Note };
inline constexpr std::size_t containerCount = enumCount<ContainerKind>;

/// The properties in which the nine containers differ.
struct ContainerTraits {
    ContainerKind kind;
    TextKey nameKey;             ///< key of the display name's text
    QStringView listKey;         ///< names the record list in insert, remove and scripting operations
    QStringView fileKey;         ///< names the container in the tank file
    QStringView attributePrefix; ///< prefix of "SortAscending" and "SortIdentifier" in the tank file
    QStringView sortIdentifier;  ///< of a new container
    bool sortedOnLoad;           ///< whether the file's sort attributes are read and applied
    ItemContext itemContext;     ///< `None` for the journals

    [[nodiscard]] constexpr bool isLivestock() const { return itemContext != ItemContext::None; }
};

// clang-format off
inline constexpr std::array<ContainerTraits, containerCount> containerTraitsTable{{
    {ContainerKind::Fish,      "FishName"_key,      u"fishListArray",      u"TankFish",      u"Fish",      u"",      false, ItemContext::Fish},
    {ContainerKind::Plant,     "PlantName"_key,     u"plantListArray",     u"TankPlant",     u"Plant",     u"",      false, ItemContext::Plant},
    {ContainerKind::Invert,    "InvertName"_key,    u"invertListArray",    u"TankInvert",    u"Invert",    u"",      false, ItemContext::Invert},
    {ContainerKind::Coral,     "CoralName"_key,     u"coralListArray",     u"TankCoral",     u"Coral",     u"",      false, ItemContext::Coral},
    {ContainerKind::Condition, "ConditionName"_key, u"conditionListArray", u"TankCondition", u"Condition", u"date",  true,  ItemContext::None},
    {ContainerKind::Schedule,  "ScheduleName"_key,  u"scheduleListArray",  u"TankSchedule",  u"Schedule",  u"date",  true,  ItemContext::None},
    {ContainerKind::Inventory, "InventoryName"_key, u"inventoryListArray", u"TankInventory", u"Inventory", u"count", true,  ItemContext::None},
    {ContainerKind::Expense,   "ExpenseName"_key,   u"expenseListArray",   u"TankExpense",   u"Expense",   u"date",  true,  ItemContext::None},
    {ContainerKind::Note,      "NoteName"_key,      u"noteListArray",      u"TankNote",      u"Note",      u"date",  true,  ItemContext::None},
}};
// clang-format on

static_assert(rowsFollow<ContainerKind>(containerTraitsTable, &ContainerTraits::kind),
              "containerTraitsTable needs one row for each ContainerKind, in its order");

[[nodiscard]] constexpr const ContainerTraits &traitsOf(ContainerKind kind)
{
    return containerTraitsTable[std::size_t(kind)];
}

[[nodiscard]] std::optional<ContainerKind> containerKindFromListKey(QStringView listKey);
[[nodiscard]] std::optional<ContainerKind> containerKindFromFileKey(QStringView fileKey);
[[nodiscard]] std::optional<ContainerKind> containerKindOf(ItemContext context);

/// The container for a record; none for targets and for item data whose context is `None`.
[[nodiscard]] std::optional<ContainerKind> containerKindOf(const Record &record);

} // namespace brinemark
