// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Parameters.h"

#include <QString>

#include <memory>
#include <vector>

namespace brinemark
{

class Tank;
struct TankData;

/// A tank's target with its display name.
struct NamedTarget {
    Parameter parameter;
    std::shared_ptr<TankData> target; ///< never null
    QString name; ///< as stored with the target; the parameter's display name when the target has none

    friend bool operator==(const NamedTarget &, const NamedTarget &) = default;
};

/// The seventeen targets, sorted by name without regard to case; equal names keep the order of the parameters.
[[nodiscard]] std::vector<NamedTarget> targetsByName(const Tank &tank);

} // namespace brinemark
