#pragma once

#include "base/text/Texts.h"

#include <QLatin1String>
#include <QStringView>

namespace brinemark
{

/// What an entry of the toolbar is. Only actions are limited to one place; the others may stand any number of times.
enum class ToolbarItemKind { Action, Separator, Space, FlexibleSpace };

/// One entry that the toolbar can hold.
struct ToolbarItem {
    QLatin1String identifier; ///< the name that is stored and handed to the callbacks
    TextKey label;
    TextKey toolTip;
    const char *icon; ///< of ui/Icons.h
    ToolbarItemKind kind = ToolbarItemKind::Action;

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
inline constexpr QLatin1String Customise{"customise"}; ///< answered by the toolbar itself
inline constexpr QLatin1String Separator{"separator"};
inline constexpr QLatin1String Space{"space"};
inline constexpr QLatin1String FlexibleSpace{"flexibleSpace"};
} // namespace toolbarid

inline constexpr ToolbarItem toolbarItems[] = {
    {toolbarid::NewTank, "ToolbarNewTank"_key, "ToolbarNewTankToolTip"_key, "NewTankBig"},
    {toolbarid::NewFish, "ToolbarNewFish"_key, "ToolbarNewFishToolTip"_key, "NewFishBig"},
    {toolbarid::NewPlant, "ToolbarNewPlant"_key, "ToolbarNewPlantToolTip"_key, "PlantNew"},
    {toolbarid::NewInvert, "ToolbarNewInvert"_key, "ToolbarNewInvertToolTip"_key, "InvertebratesNew"},
    {toolbarid::NewCoral, "ToolbarNewCoral"_key, "ToolbarNewCoralToolTip"_key, "CoralNew"},
    {toolbarid::Delete, "ToolbarDelete"_key, "ToolbarDeleteToolTip"_key, "Delete"},
    {toolbarid::Convert, "ToolbarCalculate"_key, "ToolbarCalculateToolTip"_key, "Convert"},
    {toolbarid::Note, "ToolbarNote"_key, "ToolbarNoteToolTip"_key, "NoteWindow"},
    {toolbarid::Print, "ToolbarPrint"_key, "ToolbarPrintToolTip"_key, "Print"},
    {toolbarid::Customise, "ToolbarCustomise"_key, "ToolbarCustomiseToolTip"_key, "Customise"},
    {toolbarid::Separator, "ToolbarSeparator"_key, "ToolbarSeparator"_key, "ToolbarSeparator",
     ToolbarItemKind::Separator},
    {toolbarid::Space, "ToolbarSpace"_key, "ToolbarSpace"_key, "ToolbarSpace", ToolbarItemKind::Space},
    {toolbarid::FlexibleSpace, "ToolbarFlexibleSpace"_key, "ToolbarFlexibleSpace"_key, "ToolbarFlexibleSpace",
     ToolbarItemKind::FlexibleSpace},
};

/// What a toolbar that nobody customised shows, from left to right.
inline constexpr QLatin1String toolbarDefaultSet[] = {
    toolbarid::NewTank,   toolbarid::NewFish, toolbarid::NewPlant, toolbarid::NewInvert, toolbarid::NewCoral,
    toolbarid::Separator, toolbarid::Convert, toolbarid::Note,     toolbarid::Delete,
};

/// What customising offers, in the order offered.
inline constexpr QLatin1String toolbarAllowedSet[] = {
    toolbarid::NewTank,       toolbarid::NewFish,   toolbarid::NewPlant, toolbarid::NewInvert, toolbarid::NewCoral,
    toolbarid::Note,          toolbarid::Convert,   toolbarid::Delete,   toolbarid::Separator, toolbarid::Space,
    toolbarid::FlexibleSpace, toolbarid::Customise, toolbarid::Print,
};

/// The item of an identifier; null for an unknown one.
inline const ToolbarItem *toolbarItem(QStringView identifier)
{
    for (const ToolbarItem &item : toolbarItems) {
        if (identifier == item.identifier)
            return &item;
    }
    return nullptr;
}

} // namespace brinemark
