// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"
#include "model/ContainerKind.h"
#include "model/ItemContext.h"

#include <array>

namespace brinemark
{

class Container;

/// How the four kinds of livestock differ where they are shown and added.
struct LivestockGroupTraits {
    ContainerKind kind;
    const char *picture;    ///< name of an icon, see ui/Icons.h
    TextKey emptyKey;       ///< the sentence that an empty group shows
    TextKey addKey;         ///< title of the button that adds one
    TextKey defaultNameKey; ///< name of a new record
    TextKey deleteKey;      ///< the question before one is deleted, with a placeholder for its name
    ItemContext context;
    TextKey breedingMenuKey;  ///< the items of the editor's pop-up, see textItems()
    const char *profilesName; ///< of the collection of species profiles
};

// clang-format off
inline constexpr auto livestockGroupTable = std::to_array<LivestockGroupTraits>({
    {ContainerKind::Fish,   "FishBig",       "EmptyFish"_key,   "ToolbarNewFish"_key,   "NewFishName"_key,   "DeleteFishWarning"_key,   ItemContext::Fish,  "FishBreedingMenu"_key,  "FishProfiles"},
    {ContainerKind::Plant,  "Plant",         "EmptyPlant"_key,  "ToolbarNewPlant"_key,  "NewPlantName"_key,  "DeletePlantWarning"_key,  ItemContext::Plant, "PlantBreedingMenu"_key, "PlantProfiles"},
    {ContainerKind::Invert, "Invertebrates", "EmptyInvert"_key, "ToolbarNewInvert"_key, "NewInvertName"_key, "DeleteInvertWarning"_key, ItemContext::Invert,"InvertBreedingMenu"_key,"InvertProfiles"},
    {ContainerKind::Coral,  "Coral",         "EmptyCoral"_key,  "ToolbarNewCoral"_key,  "NewCoralName"_key,  "DeleteCoralWarning"_key,  ItemContext::Coral, "CoralBreedingMenu"_key, "CoralProfiles"},
});
// clang-format on

/// Whether each livestock kind, and no journal, has one row.
consteval bool livestockGroupsComplete()
{
    for (const ContainerTraits &container : containerTraitsTable) {
        const std::size_t rows = rowsOf(container.kind, livestockGroupTable, &LivestockGroupTraits::kind);
        if (rows != (container.isLivestock() ? 1 : 0))
            return false;
    }
    return true;
}
static_assert(livestockGroupsComplete(), "livestockGroupTable needs one row for each livestock ContainerKind");

/// Null for a container that is not one of the four livestock groups.
[[nodiscard]] const LivestockGroupTraits *livestockGroupTraits(ContainerKind kind);

/// The group of a context; fish for any context without a group.
[[nodiscard]] const LivestockGroupTraits &livestockGroupForContext(ItemContext context);

/// The sum of the records' counts.
[[nodiscard]] qint64 specimenCount(const Container &livestock);

} // namespace brinemark
