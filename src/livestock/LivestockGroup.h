// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ContainerKind.h"

#include <array>

namespace brinemark
{

class Container;

/// What the four kinds of livestock differ in for whoever shows and adds them.
struct LivestockGroupTraits {
    ContainerKind kind;
    const char *picture;    ///< an icon's name
    TextKey emptyKey;       ///< what an empty group says
    TextKey addKey;         ///< title of the button that adds one
    TextKey defaultNameKey; ///< name of a new record
    TextKey deleteKey;      ///< the question before one is deleted, with a place for its name
};

// clang-format off
inline constexpr std::array<LivestockGroupTraits, 4> livestockGroupTable{{
    {ContainerKind::Fish,   "FishBig",       "EmptyFish"_key,   "ToolbarNewFish"_key,   "NewFishName"_key,   "DeleteFishWarning"_key},
    {ContainerKind::Plant,  "Plant",         "EmptyPlant"_key,  "ToolbarNewPlant"_key,  "NewPlantName"_key,  "DeletePlantWarning"_key},
    {ContainerKind::Invert, "Invertebrates", "EmptyInvert"_key, "ToolbarNewInvert"_key, "NewInvertName"_key, "DeleteInvertWarning"_key},
    {ContainerKind::Coral,  "Coral",         "EmptyCoral"_key,  "ToolbarNewCoral"_key,  "NewCoralName"_key,  "DeleteCoralWarning"_key},
}};
// clang-format on

/// Null for a journal.
[[nodiscard]] const LivestockGroupTraits *livestockGroupTraits(ContainerKind kind);

/// The sum of the records' counts.
[[nodiscard]] qint64 specimenCount(const Container &livestock);

} // namespace brinemark
