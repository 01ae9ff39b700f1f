// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"

#include <QStringView>

#include <array>

namespace brinemark
{

struct ItemData;

enum class ProfileKind { Text, Number, Count, ReefSafe };

/// A field of a species profile and its place in a form. Name, scientific name, family, notes and picture are not in
/// the table, since forms lay them out on their own.
struct ProfileField {
    QStringView key; ///< key of the record's field
    TextKey captionKey;
    ProfileKind kind;
    int row;
    int column; ///< 0 or 1; a field without a neighbour in its row is in column 0
};

// clang-format off
inline constexpr auto profileFields = std::to_array<ProfileField>({
    {u"tankLevel",   "FishDataTankLevel"_key, ProfileKind::Text,     0, 0},
    {u"ph",          "FishDataPh"_key,        ProfileKind::Number,   0, 1},
    {u"size",        "FishDataSize"_key,      ProfileKind::Text,     1, 0},
    {u"gHardness",   "FishDataGh"_key,        ProfileKind::Number,   1, 1},
    {u"breeding",    "FishDataBreeding"_key,  ProfileKind::Text,     2, 0},
    {u"KH",          "FishDataKh"_key,        ProfileKind::Number,   2, 1},
    {u"care",        "FishDataCare"_key,      ProfileKind::Text,     3, 0},
    {u"salt",        "FishDataSalt"_key,      ProfileKind::Number,   3, 1},
    {u"lifeSpan",    "FishDataLifeSpan"_key,  ProfileKind::Text,     4, 0},
    {u"count",       "FishDataCount"_key,     ProfileKind::Count,    4, 1},
    {u"temp",        "FishDataTemp"_key,      ProfileKind::Text,     5, 0},
    {u"reefSafe",    "FishDataReef"_key,      ProfileKind::ReefSafe, 6, 0},
    {u"socialLevel", "FishDataTraits"_key,    ProfileKind::Text,     7, 0},
    {u"diet",        "FishDataDiet"_key,      ProfileKind::Text,     8, 0},
});
// clang-format on

/// The field's value as shown to the user; numbers are in the locale's notation with up to seven digits.
[[nodiscard]] QString profileText(const ItemData &item, const ProfileField &field);

/// Whether a stored text means that nothing was entered: the text of "Unspecified" in this language, or
/// "(unspecified)", which older files use.
[[nodiscard]] bool isUnspecified(const QString &stored);
/// The text that a field stores: `typed`, or the text of "Unspecified" when it is empty.
[[nodiscard]] QString compareUnspecified(const QString &typed);

} // namespace brinemark
