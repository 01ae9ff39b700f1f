// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"

#include <QSettings>
#include <QVariant>

namespace brinemark
{

/// A format for QSettings whose file is an XML property list, so that every value keeps its type. A file that cannot be
/// read is renamed ("Brinemark-damaged-1.plist") and counts as empty.
[[nodiscard]] QSettings::Format propertyListSettingsFormat();

/// Converts text, whole numbers, reals, flags, dates, bytes, lists and string maps to and from property-list values. An
/// invalid variant and a type that a property list cannot hold give no value.
[[nodiscard]] plist::Value propertyListValue(const QVariant &variant);
[[nodiscard]] QVariant variantOf(const plist::Value &value);

} // namespace brinemark
