// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "model/ItemContext.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace brinemark
{

/// A species profile: texts under the keys "Name", "SciName", "Family", "Size", "Temp", "pH", "GH", "KH", "Salt" (may be
/// absent), "Social", "Diet" and "Lifespan", and the indexes of pop-up items, as texts too, under "TankLevel",
/// "Breeding", "Care" and "ReefSafe" (may be absent).
using SpeciesProfile = plist::Dict;

/// The text under a key; empty when the profile has none.
[[nodiscard]] QString profileValue(const SpeciesProfile &profile, QStringView key);

/// Whether `text` occurs in the profile's value for a field: without regard to case, and literally otherwise.
[[nodiscard]] bool profileMatches(const SpeciesProfile &profile, QStringView field, const QString &text);

/// The profiles that come with the program for one kind of livestock, in the order of their keys.
class ProfileCollection
{
public:
    /// Reads the collection of a kind; any context but plant, coral and invertebrate gives the fish. Temperatures and
    /// sizes are in the units of the user's locale. Null when the resource is missing or is no dictionary; an entry
    /// that is no dictionary is left out.
    [[nodiscard]] static std::shared_ptr<const ProfileCollection> load(ItemContext context);

    [[nodiscard]] const std::vector<SpeciesProfile> &profiles() const { return m_profiles; }

    /// The folder of the collections, ":/profiles" unless a test sets another.
    static void setFolder(const QString &folder);

private:
    ProfileCollection() = default;

    std::vector<SpeciesProfile> m_profiles;
};

} // namespace brinemark
