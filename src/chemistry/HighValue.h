// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Parameters.h"

#include <optional>
#include <span>

namespace brinemark
{

/// The advice on a parameter for which a target can be set too high to be good for the animals.
struct HighValueAdvice {
    struct Water {
        TextKey thresholdKey; ///< of the number above which a target is too high
        TextKey reasonKey;    ///< of the text that gives the reason; "^0" is replaced by that number
    };

    Parameter parameter;
    Water fresh;
    Water marine;

    [[nodiscard]] constexpr const Water &of(bool freshwater) const { return freshwater ? fresh : marine; }
};

[[nodiscard]] std::span<const HighValueAdvice> highValueAdvices();

/// Null for a parameter without a threshold.
[[nodiscard]] const HighValueAdvice *highValueAdviceOf(Parameter parameter);

/// The highest value that passes without advice, in the parameter's unit; none where there is no threshold.
[[nodiscard]] std::optional<double> highValueThreshold(Parameter parameter, bool freshwater);

/// A value that agrees with the threshold to seven significant digits is not above it.
[[nodiscard]] bool isHighValue(Parameter parameter, bool freshwater, double value);

} // namespace brinemark
