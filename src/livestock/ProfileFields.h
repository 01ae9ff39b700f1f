// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"

#include <QStringView>

#include <array>
#include <functional>

namespace brinemark
{

struct ItemData;

/// What a field holds. The texts of the pop-up kinds are items of a menu; `breeding` depends on the kind of livestock.
enum class ProfileKind { Text, TankLevel, Breeding, Care, Number, Count, ReefSafe };

/// Where the item editor shows a field: the page, and the cell of the page's form.
struct EditorCell {
    int page;
    int row;
    int column; ///< 0 or 1; a field without a neighbour in its row is in column 0
};

/// The largest number that can be typed, and its decimals; the smallest is 0.
struct NumberRange {
    double most;
    int decimals;
};

/// A field of a species profile and its places in forms. Notes and picture are not in the tables, since forms lay them
/// out on their own.
struct ProfileField {
    QStringView key; ///< key of the record's field
    TextKey captionKey;
    ProfileKind kind;
    int row;                ///< of the profile view
    int column;             ///< 0 or 1; a field without a neighbour in its row is in column 0
    QStringView profileKey; ///< its key in a found profile (livestock/ProfileCollection.h); empty for none
    EditorCell cell;
    NumberRange range = {};
};

// clang-format off
inline constexpr auto profileFields = std::to_array<ProfileField>({
    {u"tankLevel",   "FishDataTankLevel"_key, ProfileKind::TankLevel, 0, 0, u"TankLevel", {0, 0, 1}},
    {u"ph",          "FishDataPh"_key,        ProfileKind::Number,    0, 1, u"pH",        {1, 1, 0}, {14, 2}},
    {u"size",        "FishDataSize"_key,      ProfileKind::Text,      1, 0, u"Size",      {0, 0, 0}},
    {u"gHardness",   "FishDataGh"_key,        ProfileKind::Number,    1, 1, u"GH",        {1, 2, 0}, {999, 2}},
    {u"breeding",    "FishDataBreeding"_key,  ProfileKind::Breeding,  2, 0, u"Breeding",  {0, 2, 0}},
    {u"KH",          "FishDataKh"_key,        ProfileKind::Number,    2, 1, u"KH",        {1, 2, 1}, {999, 2}},
    {u"care",        "FishDataCare"_key,      ProfileKind::Care,      3, 0, u"Care",      {0, 2, 1}},
    {u"salt",        "FishDataSalt"_key,      ProfileKind::Number,    3, 1, u"Salt",      {1, 1, 1}, {999, 4}},
    {u"lifeSpan",    "FishDataLifeSpan"_key,  ProfileKind::Text,      4, 0, u"Lifespan",  {0, 1, 0}},
    {u"count",       "FishDataCount"_key,     ProfileKind::Count,     4, 1, u"",          {0, 1, 1}, {999999, 0}},
    {u"temp",        "FishDataTemp"_key,      ProfileKind::Text,      5, 0, u"Temp",      {1, 0, 0}},
    {u"reefSafe",    "FishDataReef"_key,      ProfileKind::ReefSafe,  6, 0, u"ReefSafe",  {1, 0, 1}},
    {u"socialLevel", "FishDataTraits"_key,    ProfileKind::Text,      7, 0, u"Social",    {1, 3, 0}},
    {u"diet",        "FishDataDiet"_key,      ProfileKind::Text,      8, 0, u"Diet",      {1, 4, 0}},
});
// clang-format on

/// The fields above all others, in their order: common name, scientific name and family.
struct ProfileName {
    QStringView key;
    TextKey captionKey;
    QStringView profileKey;
};
inline constexpr auto profileNames = std::to_array<ProfileName>({
    {u"name", "FishDataName"_key, u"Name"},
    {u"sciName", "FishDataSciName"_key, u"SciName"},
    {u"family", "FishDataFamily"_key, u"Family"},
});

/// The field's value as shown to the user; numbers are in the locale's notation with up to seven digits.
[[nodiscard]] QString profileText(const ItemData &item, const ProfileField &field);

/// Whether a stored text means that nothing was entered: the text of "Unspecified" in this language, or
/// "(unspecified)", which older files use.
[[nodiscard]] bool isUnspecified(const QString &stored);
/// The text that a field stores: `typed`, or the text of "Unspecified" when it is empty.
[[nodiscard]] QString compareUnspecified(const QString &typed);

/// The one number of a profile's text: the middle of a range ("6.0 - 7.5" gives 6.75), a number as it stands, and 0 for
/// any other text. The decimal separator is a full stop.
[[nodiscard]] double profileNumber(const QString &text);

/// The body of the message by which a user sends a profile in. Each line is ended by a carriage return, and has a label
/// that is the same in every language. `shown` gives the text that the editor shows in a field, by the record's key.
[[nodiscard]] QString submissionBody(const std::function<QString(QStringView key)> &shown);

} // namespace brinemark
