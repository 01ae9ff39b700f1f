// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/HighValue.h"

#include "base/TableChecks.h"
#include "chemistry/TargetCheck.h"

#include <algorithm>
#include <array>

namespace brinemark
{

namespace
{

// clang-format off
constexpr auto advices = std::to_array<HighValueAdvice>({
    // At or below the first step of common colour tests. At pH 8.5 and 25 degrees Celsius, a seventh of 0.1 mg/l is
    // toxic: less than the 0.025 mg/l that EIFAC (1970, report on ammonia) gives as the limit for fish.
    {Parameter::Ammonia, {"AmmoniaFreshValue"_key, "HighAmmoniaReason"_key}, {"AmmoniaSaltValue"_key, "HighAmmoniaReason"_key}},
    // Common hobby guidance, for reef corals in the case of sea water.
    {Parameter::Nitrate, {"NitrateFreshValue"_key, "HighNitrateReason"_key}, {"NitrateSaltValue"_key, "HighNitrateReason"_key}},
    // 0.1 mg/l is 0.03 mg/l of nitrogen, about the limit for fish other than salmonids in water with hardly any
    // chloride (EIFAC 1984, report on nitrite). Sea water has 19 g/l of chloride, which keeps nitrite out of the gills;
    // above 0.5 mg/l (common hobby guidance) it only shows that the filter is too weak.
    {Parameter::Nitrite, {"NitriteFreshValue"_key, "HighNitriteReason"_key}, {"NitriteSaltValue"_key, "HighNitriteSaltReason"_key}},
});
// clang-format on
static_assert(noneHasTwoRows<Parameter>(advices, &HighValueAdvice::parameter), "advices has two rows for a Parameter");

} // namespace

std::span<const HighValueAdvice> highValueAdvices()
{
    return advices;
}

const HighValueAdvice *highValueAdviceOf(Parameter parameter)
{
    const auto *found = std::find_if(advices.begin(), advices.end(),
                                     [&](const HighValueAdvice &advice) { return advice.parameter == parameter; });
    return found == advices.end() ? nullptr : found;
}

std::optional<double> highValueThreshold(Parameter parameter, bool freshwater)
{
    const HighValueAdvice *advice = highValueAdviceOf(parameter);
    if (!advice)
        return std::nullopt;
    return numberOfText(advice->of(freshwater).thresholdKey);
}

bool isHighValue(Parameter parameter, bool freshwater, double value)
{
    const std::optional<double> threshold = highValueThreshold(parameter, freshwater);
    return threshold && isAbove(float(value), float(*threshold));
}

} // namespace brinemark
