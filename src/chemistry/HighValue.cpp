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

constexpr std::array<HighValueAdvice, 3> advices{{
    {Parameter::Ammonia, "AmmoniaFreshValue"_key, "AmmoniaSaltValue"_key, "HighAmmoniaReason"_key},
    {Parameter::Nitrate, "NitrateFreshValue"_key, "NitrateSaltValue"_key, "HighNitrateReason"_key},
    {Parameter::Nitrite, "NitriteFreshValue"_key, "NitriteSaltValue"_key, "HighNitriteReason"_key},
}};
static_assert(noneHasTwoRows<Parameter>(advices, &HighValueAdvice::parameter));

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
    return numberOfText(freshwater ? advice->freshwaterKey : advice->marineKey);
}

bool isHighValue(Parameter parameter, bool freshwater, double value)
{
    const std::optional<double> threshold = highValueThreshold(parameter, freshwater);
    return threshold && isAbove(float(value), float(*threshold));
}

} // namespace brinemark
