// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"
#include "base/TableChecks.h"
#include "base/text/Texts.h"

#include <QLatin1String>
#include <QStringView>

#include <iterator>
#include <optional>
#include <string_view>

namespace brinemark
{

/// The kind of a toolbar item. An action occurs at most once; the other kinds may be repeated.
enum class ToolbarItemKind { Action, Separator, Space, FlexibleSpace };

/// One item that the toolbar can show.
struct ToolbarItem {
    QLatin1String identifier; ///< the name in the preferences and in callbacks
    TextKey label;
    TextKey toolTip;
    const char *icon; ///< a name in ui/Icons.h
    ToolbarItemKind kind = ToolbarItemKind::Action;
    std::optional<Command> command = {}; ///< the command that an action sends
    bool needsTank = true;               ///< for actions: disabled while there is no current tank

    [[nodiscard]] constexpr bool repeatable() const { return kind != ToolbarItemKind::Action; }
};

namespace toolbarid
{
inline constexpr QLatin1String NewTank{"newTank"};
inline constexpr QLatin1String NewFish{"newFish"};
inline constexpr QLatin1String NewPlant{"newPlant"};
inline constexpr QLatin1String NewInvert{"newInvert"};
inline constexpr QLatin1String NewCoral{"newCoral"};
inline constexpr QLatin1String Delete{"delete"};
inline constexpr QLatin1String Convert{"convert"};
inline constexpr QLatin1String Note{"note"};
inline constexpr QLatin1String Print{"print"};
inline constexpr QLatin1String Customise{"customise"}; ///< handled by the toolbar itself and never disabled
inline constexpr QLatin1String Separator{"separator"};
inline constexpr QLatin1String Space{"space"};
inline constexpr QLatin1String FlexibleSpace{"flexibleSpace"};
} // namespace toolbarid

// clang-format off
inline constexpr ToolbarItem toolbarItems[] = {
    {toolbarid::NewTank,       "ToolbarNewTank"_key,       "ToolbarNewTankToolTip"_key,      "NewTankBig",           ToolbarItemKind::Action,        Command::NewTank, false},
    {toolbarid::NewFish,       "ToolbarNewFish"_key,       "ToolbarNewFishToolTip"_key,      "NewFishBig",           ToolbarItemKind::Action,        Command::NewFish},
    {toolbarid::NewPlant,      "ToolbarNewPlant"_key,      "ToolbarNewPlantToolTip"_key,     "PlantNew",             ToolbarItemKind::Action,        Command::NewPlant},
    {toolbarid::NewInvert,     "ToolbarNewInvert"_key,     "ToolbarNewInvertToolTip"_key,    "InvertebratesNew",     ToolbarItemKind::Action,        Command::NewInvert},
    {toolbarid::NewCoral,      "ToolbarNewCoral"_key,      "ToolbarNewCoralToolTip"_key,     "CoralNew",             ToolbarItemKind::Action,        Command::NewCoral},
    {toolbarid::Delete,        "ToolbarDelete"_key,        "ToolbarDeleteToolTip"_key,       "Delete",               ToolbarItemKind::Action,        Command::Delete},
    {toolbarid::Convert,       "ToolbarCalculate"_key,     "ToolbarCalculateToolTip"_key,    "Convert",              ToolbarItemKind::Action,        Command::ToggleCalculator, false},
    {toolbarid::Note,          "ToolbarNote"_key,          "ToolbarNoteToolTip"_key,         "NoteWindow",           ToolbarItemKind::Action,        Command::ToggleOverdue},
    {toolbarid::Print,         "ToolbarPrint"_key,         "ToolbarPrintToolTip"_key,        "Print",                ToolbarItemKind::Action,        Command::Print},
    {toolbarid::Customise,     "ToolbarCustomise"_key,     "ToolbarCustomiseToolTip"_key,    "Customise",            ToolbarItemKind::Action,        Command::CustomiseToolbar, false},
    {toolbarid::Separator,     "ToolbarSeparator"_key,     "ToolbarSeparator"_key,           "ToolbarSeparator",     ToolbarItemKind::Separator},
    {toolbarid::Space,         "ToolbarSpace"_key,         "ToolbarSpace"_key,               "ToolbarSpace",         ToolbarItemKind::Space},
    {toolbarid::FlexibleSpace, "ToolbarFlexibleSpace"_key, "ToolbarFlexibleSpace"_key,       "ToolbarFlexibleSpace", ToolbarItemKind::FlexibleSpace},
};
// clang-format on

/// The items of a toolbar that was never customised, from left to right.
inline constexpr QLatin1String toolbarDefaultSet[] = {
    toolbarid::NewTank,   toolbarid::NewFish, toolbarid::NewPlant, toolbarid::NewInvert, toolbarid::NewCoral,
    toolbarid::Separator, toolbarid::Convert, toolbarid::Note,     toolbarid::Delete,
};

/// The items that the customising sheet offers, in its order.
inline constexpr QLatin1String toolbarAllowedSet[] = {
    toolbarid::NewTank,       toolbarid::NewFish,   toolbarid::NewPlant, toolbarid::NewInvert, toolbarid::NewCoral,
    toolbarid::Note,          toolbarid::Convert,   toolbarid::Delete,   toolbarid::Separator, toolbarid::Space,
    toolbarid::FlexibleSpace, toolbarid::Customise, toolbarid::Print,
};

/// Whether every action, and nothing else, sends a command of its own.
consteval bool toolbarActionsHaveCommands()
{
    for (const ToolbarItem &item : toolbarItems) {
        if ((item.kind == ToolbarItemKind::Action) != item.command.has_value())
            return false;
    }
    return noneHasTwoRows<Command>(toolbarItems, &ToolbarItem::command);
}
static_assert(toolbarActionsHaveCommands(), "toolbarItems needs one command for each action");

/// Whether customising offers every item exactly once.
consteval bool toolbarOffersEachItem()
{
    for (const ToolbarItem &item : toolbarItems) {
        const std::string_view wanted(item.identifier.data(), std::size_t(item.identifier.size()));
        std::size_t found = 0;
        for (const QLatin1String offered : toolbarAllowedSet)
            found += std::string_view(offered.data(), std::size_t(offered.size())) == wanted ? 1 : 0;
        if (found != 1)
            return false;
    }
    return std::size(toolbarAllowedSet) == std::size(toolbarItems);
}
static_assert(toolbarOffersEachItem(), "toolbarAllowedSet needs each of toolbarItems once");

/// The item with this identifier, or null.
inline const ToolbarItem *toolbarItem(QStringView identifier)
{
    for (const ToolbarItem &item : toolbarItems) {
        if (identifier == item.identifier)
            return &item;
    }
    return nullptr;
}

} // namespace brinemark
