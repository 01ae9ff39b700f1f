// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/TargetAdvice.h"

#include <array>

namespace brinemark
{

namespace
{

struct TargetAdvice {
    Parameter parameter;
    TargetState state; ///< Low or High
    TextKey fresh;
    TextKey marine;
};

constexpr TextKey noAdvice;
constexpr auto Low = TargetState::Low;
constexpr auto High = TargetState::High;

// Each comment gives the source of the figures in the texts of the rows below it. "Hobby" stands for common hobby
// guidance. Portions are small enough for every hobby source, such as 0.001 of specific gravity or 1 degree of hardness
// a day.
// clang-format off
constexpr std::array<TargetAdvice, 2 * parameterCount> targetAdvices{{
    // The treatment itself has a paragraph for each direction.
    {Parameter::Temp, Low,  noAdvice, noAdvice},
    {Parameter::Temp, High, noAdvice, noAdvice},

    // Toxic parts of ammonia: Emerson, Russo, Lund and Thurston (1975), fresh water at 25 degrees Celsius, 1 / (1 +
    // 10^(9.25 - pH)). Filter bacteria below pH 6 and limewater above 8.6: hobby.
    {Parameter::Ph, Low,  "PhLowFreshAdvice"_key,  "PhLowSaltAdvice"_key},
    {Parameter::Ph, High, "PhHighFreshAdvice"_key, "PhHighSaltAdvice"_key},

    // As for pH; sea water at pH 8.2: about 6 parts in 100 (Bower and Bidwell 1978), against 0.6 at pH 7.
    {Parameter::Ammonia, Low,  "AmmoniaLowAdvice"_key,       "AmmoniaLowAdvice"_key},
    {Parameter::Ammonia, High, "AmmoniaHighFreshAdvice"_key, "AmmoniaHighSaltAdvice"_key},

    // 4.4 is the ratio of the masses of NO3 and N. Levels for plants and corals: hobby.
    {Parameter::Nitrate, Low,  "NitrateLowFreshAdvice"_key,  "NitrateLowSaltAdvice"_key},
    {Parameter::Nitrate, High, "NitrateHighFreshAdvice"_key, "NitrateHighSaltAdvice"_key},

    // 1 g of salt in 10 l is 60 mg/l of chloride, ten times the mass of 6 mg/l of nitrite: Boyd and Tucker (Pond
    // Aquaculture Water Quality Management, 1998) on the ratio that protects fish. Sea water: 19.35 g/kg of chloride at
    // a salinity of 35 (Millero, Chemical Oceanography).
    {Parameter::Nitrite, Low,  "NitriteLowAdvice"_key,       "NitriteLowAdvice"_key},
    {Parameter::Nitrite, High, "NitriteHighFreshAdvice"_key, "NitriteHighSaltAdvice"_key},

    // Sea water: 412 mg/kg of calcium and 1284 mg/kg of magnesium (Millero) are 350 German degrees.
    {Parameter::GH, Low,  "HardnessLowFreshAdvice"_key,  "GHSaltAdvice"_key},
    {Parameter::GH, High, "HardnessHighFreshAdvice"_key, "GHSaltAdvice"_key},

    // 1 degree is 0.357 meq/l, or 30 mg/l of sodium bicarbonate (84.0 g/mol). Ammonia: as for pH.
    {Parameter::KH, Low,  "KHLowFreshAdvice"_key,  "KHLowSaltAdvice"_key},
    {Parameter::KH, High, "KHHighFreshAdvice"_key, "AlkalinityHighSaltAdvice"_key},

    // Hobby.
    {Parameter::Salt, Low,  "SaltLowAdvice"_key,  "SaltLowAdvice"_key},
    {Parameter::Salt, High, "SaltHighAdvice"_key, "SaltHighAdvice"_key},

    // The range of reef tanks and the limit of 12 degrees: hobby.
    {Parameter::Alkalinity, Low,  "KHLowFreshAdvice"_key,  "AlkalinityLowSaltAdvice"_key},
    {Parameter::Alkalinity, High, "KHHighFreshAdvice"_key, "AlkalinityHighSaltAdvice"_key},

    // 3.1 is the ratio of the masses of PO4 and P. Levels for plants and corals: hobby.
    {Parameter::Phosphate, Low,  "PhosphateLowFreshAdvice"_key,  "PhosphateLowSaltAdvice"_key},
    {Parameter::Phosphate, High, "PhosphateHighFreshAdvice"_key, "PhosphateHighSaltAdvice"_key},

    // Hobby.
    {Parameter::Calcium, Low,  "HardnessLowFreshAdvice"_key,  "CalciumLowSaltAdvice"_key},
    {Parameter::Calcium, High, "HardnessHighFreshAdvice"_key, "CalciumHighSaltAdvice"_key},

    // Sea water: about 0.45 micromoles of iodine, in all its forms, in a litre (Millero).
    {Parameter::Iodine, Low,  "IodineLowFreshAdvice"_key, "IodineLowSaltAdvice"_key},
    {Parameter::Iodine, High, "IodineHighAdvice"_key,     "IodineHighAdvice"_key},

    // 5 and 3 mg/l: one-day minima for young and grown warm-water fish (EPA, Ambient Water Quality Criteria for
    // Dissolved Oxygen, 1986). 8.3 and 6.8 mg/l: saturation at 25 degrees Celsius (Benson and Krause 1984).
    {Parameter::Oxygen, Low,  "OxygenLowAdvice"_key,  "OxygenLowAdvice"_key},
    {Parameter::Oxygen, High, "OxygenHighAdvice"_key, "OxygenHighAdvice"_key},

    // EPA, Ambient Water Quality Criteria for Copper (1984): acute criteria of 0.018 mg/l at a hardness of 100 mg/l,
    // less in softer water, and 0.003 mg/l in sea water.
    {Parameter::Copper, Low,  "CopperLowAdvice"_key,       "CopperLowAdvice"_key},
    {Parameter::Copper, High, "CopperHighFreshAdvice"_key, "CopperHighSaltAdvice"_key},

    // Hobby.
    {Parameter::Iron, Low,  "IronLowFreshAdvice"_key,  "IronLowSaltAdvice"_key},
    {Parameter::Iron, High, "IronHighFreshAdvice"_key, "IronHighSaltAdvice"_key},

    // Hobby.
    {Parameter::Dioxide, Low,  "DioxideLowFreshAdvice"_key,  "DioxideLowSaltAdvice"_key},
    {Parameter::Dioxide, High, "DioxideHighFreshAdvice"_key, "DioxideHighSaltAdvice"_key},

    // Hobby.
    {Parameter::Magnesium, Low,  "HardnessLowFreshAdvice"_key,  "MagnesiumLowSaltAdvice"_key},
    {Parameter::Magnesium, High, "HardnessHighFreshAdvice"_key, "MagnesiumHighSaltAdvice"_key},
}};
// clang-format on

consteval bool rowsAreInOrder()
{
    for (std::size_t i = 0; i < targetAdvices.size(); ++i) {
        if (targetAdvices[i].parameter != Parameter(i / 2) || targetAdvices[i].state != (i % 2 == 0 ? Low : High))
            return false;
    }
    return true;
}
static_assert(rowsAreInOrder(), "targetAdvices needs a row for low and a row for high of each Parameter, in order");

} // namespace

bool canAimAtZero(Parameter parameter)
{
    switch (parameter) {
    case Parameter::Temp:
    case Parameter::Ph:
    case Parameter::GH:
    case Parameter::KH:
    case Parameter::Salt:
    case Parameter::Alkalinity:
    case Parameter::Calcium:
    case Parameter::Oxygen:
    case Parameter::Magnesium:
        return false;
    case Parameter::Ammonia:
    case Parameter::Nitrate:
    case Parameter::Nitrite:
    case Parameter::Phosphate:
    case Parameter::Iodine:
    case Parameter::Copper:
    case Parameter::Iron:
    case Parameter::Dioxide:
        break;
    }
    return true;
}

TextKey targetAdviceKey(Parameter parameter, TargetState state, bool freshwater, float preferredValue)
{
    if (state != Low && state != High)
        return noAdvice;
    if (preferredValue == 0 && !canAimAtZero(parameter))
        return "UnsetTargetAdvice";
    const TargetAdvice &advice = targetAdvices[2 * std::size_t(parameter) + (state == High ? 1 : 0)];
    return freshwater ? advice.fresh : advice.marine;
}

} // namespace brinemark
