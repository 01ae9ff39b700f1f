// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace brinemark
{

class Tank;
struct TankData;

/// The values that a target accepts, both limits included; without a band both are the preferred value.
struct TargetBand {
    float low = 0;
    float high = 0;

    [[nodiscard]] bool isSingleValue() const { return low == high; }
};

[[nodiscard]] TargetBand targetBand(const TankData &target);

/// Where a measured value lies.
enum class TargetState {
    NotChecked, ///< not tested, or the target does not warn
    Within,     ///< also of a value that is no number
    Low,
    High,
};

/// Compares in single precision, so that a value that is written like a limit counts as on it. Null for no target.
[[nodiscard]] TargetState targetState(const TankData *target, double value);

/// What a warning says. The message ends with the treatment.
struct TargetWarning {
    QString title;
    QString message;
};

/// The warning about a measured value of the parameter of this identifier; none when there is nothing to warn of.
/// `columnTitle` names the parameter.
[[nodiscard]] std::optional<TargetWarning> targetWarning(const Tank &tank, QStringView identifier, double value,
                                                         const QString &columnTitle);

/// One sentence about a value that is too low or too high: which limit it crossed. Empty for the other states.
[[nodiscard]] QString targetStateText(const TankData &target, TargetState state);

} // namespace brinemark
