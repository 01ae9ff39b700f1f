// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "model/Parameters.h"

#include <memory>

/// The part of a tank's file form that the current and the older form share: the dictionary of its properties.
namespace brinemark
{

class Tank;
struct TankData;

/// Fills name, size, flags and expense categories.
/// \throws TankReadError when the name or the size is missing or a value is of the wrong kind
void readTankProperties(Tank &tank, const plist::Dict &properties);

/// The target of a parameter; when the properties have none, one without a name and with zero values.
[[nodiscard]] std::shared_ptr<TankData> readTarget(Parameter parameter, const plist::Dict &properties);

/// A target with the parameter's display name, zero values and everything off.
[[nodiscard]] std::shared_ptr<TankData> plainTarget(Parameter parameter);

[[nodiscard]] plist::Dict tankPropertiesDict(const Tank &tank);

} // namespace brinemark
