#include "chemistry/TargetBand.h"

#include "model/TankData.h"

namespace brinemark
{

std::optional<TargetBand> targetBand(const TankData &target)
{
    if (!target.warningOn)
        return std::nullopt;
    const float deviation = target.deviationOn ? target.deviationValue : 0;
    return TargetBand{target.preferredValue - deviation, target.preferredValue + deviation};
}

} // namespace brinemark
