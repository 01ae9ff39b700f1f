// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"
#include "base/text/Texts.h"

#include <QStringView>

#include <array>
#include <optional>

namespace brinemark
{

/// The water parameters, in the order of a tank's targets.
enum class Parameter {
    Temp,
    Ph,
    Ammonia,
    Nitrate,
    Nitrite,
    GH,
    KH,
    Salt,
    Alkalinity,
    Phosphate,
    Calcium,
    Iodine,
    Oxygen,
    Copper,
    Iron,
    Dioxide,
    Magnesium,
};
inline constexpr std::size_t parameterCount = enumCount<Parameter>;

/// A number of a default target: fixed, or a text's number where it depends on language and units.
struct DefaultNumber {
    float literal = 0;
    std::optional<TextKey> textKey = {}; ///< when set, the number of this text is used instead of the literal

    [[nodiscard]] float value() const { return textKey ? float(numberOfText(*textKey)) : literal; }
};

/// Device red, green and blue, each from 0 to 1.
struct LineColour {
    float red;
    float green;
    float blue;
};

/// What a parameter is called, how it is filed, and what a new tank aims at.
struct ParameterTraits {
    Parameter parameter;
    QStringView identifier;    ///< of the field in a water test, and of the column
    QStringView targetKey;     ///< of the target in a tank
    QStringView targetFileKey; ///< of the target in the tank file
    QStringView testFileKey;   ///< of the value in the tank file's water tests
    bool integral;             ///< measured in whole numbers
    TextKey targetNameKey;     ///< of the target's display name
    TextKey captionKey;        ///< of the value in the text of a water test
    DefaultNumber preferred;   ///< of a default target, as are the deviation and the warning
    DefaultNumber deviation;
    bool warningOn;                       ///< a default target that warns has its band on as well
    TextKey treatmentKey;                 ///< of the advice when a test lies outside the target
    std::optional<LineColour> lineColour; ///< in a graph; none for temperature, which is never drawn
};

// clang-format off
inline constexpr std::array<ParameterTraits, parameterCount> parameterTable{{
    {Parameter::Temp,       u"temp",       u"tempData",       u"tempValue",       u"Temp",       false, "Temperature"_key,   "ConditionDataTemp"_key,        {0, "TempFreshValue"_key}, {}, false, "TempTreatment"_key, std::nullopt},
    {Parameter::Ph,         u"ph",         u"phData",         u"pHValue",         u"ph",         false, "Ph"_key,            "ConditionDataPh"_key,          {7.0F}, {}, false, "PhTreatment"_key, LineColour{0.45F, 0.15F, 0.75F}},
    {Parameter::Ammonia,    u"ammonia",    u"ammoniaData",    u"ammoniaValue",    u"Ammonia",    false, "Ammonia"_key,       "ConditionDataAmmonia"_key,     {}, {0, "AmmoniaFreshValue"_key}, true, "AmmoniaTreatment"_key, LineColour{0.8F, 0.078F, 0.078F}},
    {Parameter::Nitrate,    u"nitrate",    u"nitrateData",    u"nitrateValue",    u"Nitrate",    false, "Nitrate"_key,       "ConditionDataNitrate"_key,     {}, {0, "NitrateFreshValue"_key}, true, "NitrateTreatment"_key, LineColour{0.078F, 0.44F, 0.8F}},
    {Parameter::Nitrite,    u"nitrite",    u"nitriteData",    u"nitriteValue",    u"Nitrite",    false, "Nitrite"_key,       "ConditionDataNitrite"_key,     {}, {0, "NitriteFreshValue"_key}, true, "NitriteTreatment"_key, LineColour{0.67F, 0.38F, 0.95F}},
    {Parameter::GH,         u"gH",         u"gHData",         u"gHValue",         u"GH",         false, "GH"_key,            "ConditionDataGH"_key,          {}, {}, false, "ppmTreatment"_key, LineColour{0.85F, 0.85F, 0.21F}},
    {Parameter::KH,         u"kH",         u"kHData",         u"kHValue",         u"KH",         false, "KH"_key,            "ConditionDataKH"_key,          {}, {}, false, "ppmTreatment"_key, LineColour{0.38F, 0.67F, 0.95F}},
    {Parameter::Salt,       u"salt",       u"saltData",       u"saltValue",       u"Salt",       false, "Salinity"_key,      "ConditionDataSalt"_key,        {}, {}, false, "ppmTreatment"_key, LineColour{0.38F, 0.21F, 0.04F}},
    {Parameter::Alkalinity, u"alkalinity", u"alkalinityData", u"alkalinityValue", u"alkalinity", false, "Alkalinity"_key,    "CondtionDataAlkalinity"_key,   {}, {}, false, "genericTreatment"_key, LineColour{0.95F, 0.38F, 0.38F}},
    {Parameter::Phosphate,  u"phosphate",  u"phosphateData",  u"phosphateValue",  u"phosphate",  false, "Phosphate"_key,     "CondtionDataPhosphate"_key,    {}, {}, false, "ppmTreatment"_key, LineColour{0.6F, 0.4F, 0.3F}},
    {Parameter::Calcium,    u"calcium",    u"calciumData",    u"calciumValue",    u"calcium",    true,  "Calcium"_key,       "CondtionDataCalcium"_key,      {}, {}, false, "ppmTreatment"_key, LineColour{0.95F, 0.67F, 0.38F}},
    {Parameter::Iodine,     u"iodine",     u"iodineData",     u"iodineValue",     u"iodine",     false, "Iodine"_key,        "CondtionDataIodine"_key,       {}, {}, false, "ppmTreatment"_key, LineColour{0.38F, 0.95F, 0.38F}},
    {Parameter::Oxygen,     u"oxygen",     u"oxygenData",     u"oxygenValue",     u"oxygen",     false, "Oxygen"_key,        "CondtionDataOxygen"_key,       {}, {}, false, "ppmTreatment"_key, LineColour{0.95F, 0.95F, 0.38F}},
    {Parameter::Copper,     u"copper",     u"copperData",     u"copperValue",     u"copper",     false, "Copper"_key,        "CondtionDataCopper"_key,       {}, {}, false, "ppmTreatment"_key, LineColour{0.85F, 0.5F, 0.17F}},
    {Parameter::Iron,       u"iron",       u"ironData",       u"ironValue",       u"iron",       false, "Iron"_key,          "CondtionDataIron"_key,         {}, {}, false, "ppmTreatment"_key, LineColour{0.156F, 0.8F, 0.156F}},
    {Parameter::Dioxide,    u"dioxide",    u"dioxideData",    u"dioxideValue",    u"dioxide",    true,  "CarbonDioxide"_key, "CondtionDataCarbonDioxide"_key, {}, {}, false, "ppmTreatment"_key, LineColour{0.38F, 0.38F, 0.48F}},
    {Parameter::Magnesium,  u"magnesium",  u"magnesiumData",  u"magnesiumValue",  u"magnesium",  true,  "Magnesium"_key,     "CondtionDataMagnesium"_key,    {}, {}, false, "ppmTreatment"_key, LineColour{0.21F, 0.21F, 0.21F}},
}};
// clang-format on

static_assert(rowsFollow<Parameter>(parameterTable, &ParameterTraits::parameter),
              "parameterTable needs one row for each Parameter, in its order");

[[nodiscard]] constexpr const ParameterTraits &traitsOf(Parameter parameter)
{
    return parameterTable[std::size_t(parameter)];
}

/// The parameter of an identifier such as "gH"; none for anything else ("date" included).
[[nodiscard]] std::optional<Parameter> parameterFromIdentifier(QStringView identifier);

/// The parameter of a target key such as "gHData".
[[nodiscard]] std::optional<Parameter> parameterFromTargetKey(QStringView targetKey);

/// The order of the fields of a water test, after the date.
inline constexpr std::array<Parameter, parameterCount> recordFieldOrder{
    Parameter::Ph,      Parameter::Ammonia,   Parameter::Nitrate, Parameter::Nitrite,    Parameter::GH,
    Parameter::KH,      Parameter::Salt,      Parameter::Temp,    Parameter::Alkalinity, Parameter::Phosphate,
    Parameter::Calcium, Parameter::Iodine,    Parameter::Oxygen,  Parameter::Copper,     Parameter::Iron,
    Parameter::Dioxide, Parameter::Magnesium,
};
static_assert(eachHasOneRow<Parameter>(recordFieldOrder), "recordFieldOrder needs each Parameter once");

/// The order of the columns of a new tank's water-test table, after the date.
inline constexpr std::array<Parameter, parameterCount> defaultColumnOrder{
    Parameter::Temp,      Parameter::Ph,        Parameter::Ammonia, Parameter::Nitrate, Parameter::Nitrite,
    Parameter::Magnesium, Parameter::GH,        Parameter::KH,      Parameter::Salt,    Parameter::Alkalinity,
    Parameter::Calcium,   Parameter::Dioxide,   Parameter::Copper,  Parameter::Iodine,  Parameter::Iron,
    Parameter::Oxygen,    Parameter::Phosphate,
};
static_assert(eachHasOneRow<Parameter>(defaultColumnOrder), "defaultColumnOrder needs each Parameter once");

} // namespace brinemark
