// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"
#include "base/text/SFCheckedFormatter.h"
#include "base/text/Texts.h"
#include "model/Condition.h"
#include "model/Parameters.h"

#include <QStringView>

#include <array>
#include <optional>
#include <vector>

namespace brinemark
{

/// A column that the water-test table can show.
struct ConditionColumnTraits {
    int tag;                            ///< identifies the column in menus
    std::optional<Parameter> parameter; ///< none for the date
    TextKey headerKey;
    float maximum; ///< the largest value that can be entered; 0 for the date
    int decimals;
    int width = 0; ///< pixels; 0 for as wide as the header's text
    /// Of the column in saved layouts, and of its field in a water test.
    QStringView identifier = parameter ? traitsOf(*parameter).identifier : QStringView(u"date");
};

// clang-format off
inline constexpr std::array<ConditionColumnTraits, 1 + parameterCount> conditionColumnTable{{
    {20, std::nullopt,          "Date"_key,             0,    0},
    {21, Parameter::Temp,       "TemperatureShort"_key, 150,  1},
    {22, Parameter::Ph,         "Ph"_key,               99,   2},
    {23, Parameter::Ammonia,    "Ammonia"_key,          99,   2},
    {24, Parameter::Nitrate,    "Nitrate"_key,          600,  2},
    {25, Parameter::Nitrite,    "Nitrite"_key,          300,  2},
    {26, Parameter::GH,         "GH"_key,               999,  2, 40},
    {27, Parameter::KH,         "KH"_key,               600,  2, 40},
    {28, Parameter::Alkalinity, "Alkalinity"_key,       600,  1},
    {29, Parameter::Calcium,    "Calcium"_key,          999,  0},
    {30, Parameter::Copper,     "Copper"_key,           99,   2},
    {31, Parameter::Iodine,     "Iodine"_key,           99,   2},
    {32, Parameter::Iron,       "Iron"_key,             99,   1},
    {33, Parameter::Salt,       "Salinity"_key,         10,   3},
    {34, Parameter::Oxygen,     "OxygenShort"_key,      99,   1},
    {35, Parameter::Phosphate,  "Phosphate"_key,        99,   1},
    {38, Parameter::Dioxide,    "CarbonDioxide"_key,    99,   0},
    {39, Parameter::Magnesium,  "Magnesium"_key,        2500, 0},
}};
// clang-format on
static_assert(eachHasOneRow<Parameter>(conditionColumnTable, &ConditionColumnTraits::parameter),
              "conditionColumnTable needs one row for each Parameter");

/// The column with a tag or an identifier; null when there is none (tags 36 and 37 are unused).
[[nodiscard]] const ConditionColumnTraits *conditionColumnFromTag(int tag);
[[nodiscard]] const ConditionColumnTraits *conditionColumnFromIdentifier(QStringView identifier);

/// The tag of the column with an identifier; 0 when there is none. The inverse of conditionColumnFromTag(), kept
/// without a caller.
[[nodiscard]] int tagFromColumnIdentifier(QStringView identifier);

/// The formatter that reads, checks and shows a column's values: not tested or up to the column's maximum, rounded to
/// the column's decimals.
[[nodiscard]] SFCheckedFormatter conditionFormatter(const ConditionColumnTraits &column);

/// A visible column and its width in pixels; 0 for the column's default width.
struct ShownConditionColumn {
    const ConditionColumnTraits *column;
    double width;
};

/// The visible columns of a saved layout. Every entry toggles its column: a column that is named twice is hidden again.
/// Unknown identifiers are ignored. A missing or impossible width becomes 0, and so does the width of the column
/// before, because that column no longer has to fill the table. A layout that shows no column at all counts as the
/// default one, because a table without columns offers nothing to act on.
[[nodiscard]] std::vector<ShownConditionColumn> shownConditionColumns(const ColumnInfoArray &saved);

} // namespace brinemark
