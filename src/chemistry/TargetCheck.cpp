// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/TargetCheck.h"

#include "base/text/NumberText.h"
#include "base/text/Texts.h"
#include "chemistry/TargetAdvice.h"
#include "model/Parameters.h"
#include "model/Tank.h"

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

/// The decimal number that a float stands for: 7.2 for 7.2F, which is 7.19999981 in double precision.
double decimalNumber(float value)
{
    return std::isfinite(value) ? leadingNumber(floatText(value)) : double(value);
}

/// A target of 0 with a tolerance has a lower limit below 0, which no parameter can have.
QString shownLimit(float limit)
{
    return localizeAndTrimZeros(std::max(limit, 0.0F));
}

} // namespace

bool isAbove(float value, float limit)
{
    return value > limit && decimalNumber(value) > decimalNumber(limit);
}

TargetBand targetBand(const TankData &target)
{
    // 7.2F + 0.2F is less than 7.4F; 25F - 24.9F differs from 0.1F in the fifth digit.
    const double preferred = decimalNumber(target.preferredValue);
    const double deviation = target.deviationOn ? decimalNumber(target.deviationValue) : 0;
    return {float(preferred - deviation), float(preferred + deviation)};
}

TargetState targetState(const TankData *target, double value)
{
    if (value < 0 || !target || !target->warningOn)
        return TargetState::NotChecked;
    const TargetBand band = targetBand(*target);
    const auto measured = float(value);
    // A negative deviation makes `low` exceed `high`. The upper limit is tested first, so a value between the two is
    // High.
    if (isAbove(measured, band.high))
        return TargetState::High;
    return isAbove(band.low, measured) ? TargetState::Low : TargetState::Within;
}

std::optional<TargetWarning> targetWarning(const Tank &tank, QStringView identifier, double value,
                                           const QString &columnTitle)
{
    const std::optional<Parameter> parameter = parameterFromIdentifier(identifier);
    const TankData *target = parameter ? tank.target(*parameter) : nullptr;
    const TargetState state = targetState(target, value);
    if (state != TargetState::Low && state != TargetState::High)
        return std::nullopt;
    const bool low = state == TargetState::Low;
    const TargetBand band = targetBand(*target);
    const QString title = low ? text("LowValueTitle") : text("HighValueTitle");
    const QString message = band.isSingleValue() ? text("EqualValueMessage")
                            : low                ? text("LowValueMessage")
                                                 : text("HighValueMessage");
    const QString limit = shownLimit(low ? band.low : band.high);
    QString advice = text(traitsOf(*parameter).treatmentKey);
    const TextKey particular = targetAdviceKey(*parameter, state, tank.freshwater, target->preferredValue);
    if (!particular.isEmpty())
        advice += QStringLiteral("\n\n") + text(particular);
    return TargetWarning{fillPlaceholders(title, {columnTitle}), fillPlaceholders(message, {limit}) + advice};
}

QString targetStateText(const TankData &target, TargetState state)
{
    if (state != TargetState::Low && state != TargetState::High)
        return {};
    const bool low = state == TargetState::Low;
    const TargetBand band = targetBand(target);
    const QString sentence = band.isSingleValue() ? (low ? text("BelowTargetToolTip") : text("AboveTargetToolTip"))
                                                  : (low ? text("BelowLimitToolTip") : text("AboveLimitToolTip"));
    return fillPlaceholders(sentence, {shownLimit(low ? band.low : band.high)});
}

QString targetRangeText(const TankData &target)
{
    const TargetBand band = targetBand(target);
    return band.isSingleValue()
               ? fillPlaceholders(text("GraphLegendValue"), {shownLimit(band.low)})
               : fillPlaceholders(text("GraphLegendBand"), {shownLimit(band.low), shownLimit(band.high)});
}

} // namespace brinemark
