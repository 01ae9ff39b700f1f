#pragma once

#include <optional>

namespace brinemark
{

struct TankData;

/// The values that a target asks for, ends included; both ends are the preferred value when no deviation is in use.
struct TargetBand {
    float low;
    float high;

    friend bool operator==(const TargetBand &, const TargetBand &) = default;
};

/// None for a target whose warnings are off.
[[nodiscard]] std::optional<TargetBand> targetBand(const TankData &target);

} // namespace brinemark
