// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"
#include "chemistry/TargetCheck.h"
#include "model/Parameters.h"

namespace brinemark
{

/// The key of the paragraph that a warning adds to the parameter's treatment, for one direction and one kind of water.
/// Empty where the treatment says everything, and for states other than Low and High.
[[nodiscard]] TextKey targetAdviceKey(Parameter parameter, TargetState state, bool freshwater);

} // namespace brinemark
