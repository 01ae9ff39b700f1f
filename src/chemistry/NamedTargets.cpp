// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/NamedTargets.h"

#include "model/Tank.h"

#include <algorithm>

namespace brinemark
{

std::vector<NamedTarget> targetsByName(const Tank &tank)
{
    std::vector<NamedTarget> targets;
    targets.reserve(parameterCount);
    for (const ParameterTraits &traits : parameterTable) {
        auto target = std::static_pointer_cast<TankData>(tank.target(traits.parameter)->shared_from_this());
        const QString name = target->name.isEmpty() ? text(traits.targetNameKey) : target->name;
        targets.push_back({traits.parameter, std::move(target), name});
    }
    std::stable_sort(targets.begin(), targets.end(), [](const NamedTarget &a, const NamedTarget &b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return targets;
}

} // namespace brinemark
