// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"

#include <array>
#include <span>

namespace brinemark
{

/// One conversion between two units. Some factors are rounded on purpose, and each is computed in single or double
/// precision as written; results depend on both, so they must not be "corrected".
using Conversion = double (*)(float value);

namespace conversion
{

// clang-format off
inline constexpr std::array<Conversion, 2> temperature{
    [](float x) -> double { return (x - 32.0F) / 1.8; },        // Fahrenheit to Celsius
    [](float x) -> double { return x * 1.8 + 32; },             // Celsius to Fahrenheit
};
inline constexpr std::array<Conversion, 10> measurement{
    [](float x) -> double { return x * 17.9; },                 // degrees of hardness to ppm
    [](float x) -> double { return x / 17.9; },
    [](float x) -> double { return (x - 0.999) * 1300 + 1.1; }, // specific gravity to salinity
    [](float x) -> double { return (x - 1.1) / 1300 + 0.999; },
    [](float x) -> double { return x * 3.0F; },                 // tablespoons to teaspoons
    [](float x) -> double { return x * 60.0F; },
    [](float x) -> double { return x * 0.2028841; },            // millilitres to teaspoons
    [](float x) -> double { return x * 4.9289216; },
    [](float x) -> double { return x / 2.8; },                  // carbonate hardness to milliequivalents per litre
    [](float x) -> double { return x * 2.8; },
};
inline constexpr std::array<Conversion, 7> length{
    [](float x) -> double { return x * 2.54; },                 // inches to centimetres
    [](float x) -> double { return x * 0.3937; },
    [](float x) -> double { return x * 0.1094; },               // decimetres to yards
    [](float x) -> double { return x * 0.03281; },              // centimetres to feet
    [](float x) -> double { return x * 0.3048; },
    [](float x) -> double { return x * 1.094; },                // metres to yards
    [](float x) -> double { return x * 0.9144; },
};
inline constexpr std::array<Conversion, 4> surface{
    [](float x) -> double { return x * 0.0929; },               // square feet to square metres
    [](float x) -> double { return x * 10.76; },
    [](float x) -> double { return x * 144.0F; },               // square feet to square inches
    [](float x) -> double { return x / 144.0F; },
};
inline constexpr std::array<Conversion, 3> flow{
    [](float x) -> double { return x * 3.7854118; },            // US gallons per hour to litres per hour
    [](float x) -> double { return x * 0.264172051; },
    [](float x) -> double { return x * 0.000277777778; },       // per hour to per second
};
inline constexpr std::array<Conversion, 6> volume{
    [](float x) -> double { return x * 1.20095042; },           // imperial to US gallons
    [](float x) -> double { return x * 4.54609188; },           // imperial gallons to litres
    [](float x) -> double { return x * 0.219969157; },
    [](float x) -> double { return x * 0.264172051; },          // litres to US gallons
    [](float x) -> double { return x * 3.7854118; },
    [](float x) -> double { return x * 4.0F; },                 // gallons to quarts
};
inline constexpr std::array<Conversion, 2> pollutant{
    [](float x) -> double { return x / 4.4; },                  // nitrate to nitrate nitrogen
    [](float x) -> double { return x * 4.4; },
};
// clang-format on

} // namespace conversion

/// A kind of quantity with its conversions. `menuKey` is the text key of their titles, which are in the same order and
/// separated by a comma and a space.
struct ConversionKind {
    TextKey menuKey;
    std::span<const Conversion> conversions;
};

inline constexpr auto conversionKinds = std::to_array<ConversionKind>({
    {"TempMenu"_key, conversion::temperature},
    {"MeasurementMenu"_key, conversion::measurement},
    {"LengthMenu"_key, conversion::length},
    {"SurfaceMenu"_key, conversion::surface},
    {"FlowMenu"_key, conversion::flow},
    {"VolumeMenu"_key, conversion::volume},
    {"PollutantMenu"_key, conversion::pollutant},
});

/// Converts by kind and item index. An unknown item returns the value unchanged, an unknown kind returns 0.
[[nodiscard]] float convertUnits(int kind, int item, float value);

/// The titles of a kind's conversions; the titles of all kinds.
[[nodiscard]] QStringList conversionTitles(int kind);
[[nodiscard]] QStringList conversionKindTitles();

} // namespace brinemark
