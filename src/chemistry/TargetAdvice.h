// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"
#include "chemistry/TargetCheck.h"
#include "model/Parameters.h"

namespace brinemark
{

/// Whether a tank can be meant to have none of what the parameter measures, as of ammonia. A target of 0 for any other
/// parameter is one that nobody has set.
[[nodiscard]] bool canAimAtZero(Parameter parameter);

/// The key of the paragraph that a warning adds to the parameter's treatment, for one direction and one kind of water.
/// Empty where the treatment says everything, and for states other than Low and High. Above a target that nobody has
/// set, the paragraph asks for the target instead of calling a good value too high.
[[nodiscard]] TextKey targetAdviceKey(Parameter parameter, TargetState state, bool freshwater, float preferredValue);

} // namespace brinemark
