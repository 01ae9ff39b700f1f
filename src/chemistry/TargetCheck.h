// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace brinemark
{

class Tank;
struct TankData;

/// Whether a value is above a limit after both have been rounded to seven significant digits, the resolution of a float
/// and of the tank file. False for NaN.
[[nodiscard]] bool isAbove(float value, float limit);

/// The values that a target accepts, both limits included; without a band both are the preferred value.
struct TargetBand {
    float low = 0;
    float high = 0;

    [[nodiscard]] bool isSingleValue() const { return low == high; }
};

/// The floats nearest to the decimal sum and difference, so that a limit equals the same number when it is typed.
[[nodiscard]] TargetBand targetBand(const TankData &target);

/// Where a measured value lies relative to the target.
enum class TargetState {
    NotChecked, ///< not tested, or the target does not warn
    Within,     ///< also for NaN
    Low,
    High,
};

/// A value that agrees with a limit to seven significant digits is within. `target` may be null.
[[nodiscard]] TargetState targetState(const TankData *target, double value);

/// The texts of a warning. The message ends with the parameter's treatment and, where there is more to say, a paragraph
/// about this direction in this kind of water (targetAdviceKey).
struct TargetWarning {
    QString title;
    QString message;
};

/// The warning about a measured value of the parameter of this identifier; none when the value needs no warning.
/// `columnTitle` names the parameter.
[[nodiscard]] std::optional<TargetWarning> targetWarning(const Tank &tank, QStringView identifier, double value,
                                                         const QString &columnTitle);

/// One sentence that says which limit a value crossed, if it is too low or too high. Empty for the other states.
[[nodiscard]] QString targetStateText(const TankData &target, TargetState state);

/// The target or its two limits, such as "Target: 0.0 to 0.1". Limits below 0 are shown as 0.
[[nodiscard]] QString targetRangeText(const TankData &target);

} // namespace brinemark
