// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"

#include <QByteArray>

namespace brinemark::plist
{

/// The XML property list of a value, in UTF-8: tab indentation, keys in order, data in indented lines of base64, dates
/// in whole seconds of UTC. A carriage return is written as a reference, so that it survives reading; characters that
/// XML cannot hold are left out, as are entries without a value or with an invalid date. A root without a value gives
/// an empty result. Never depends on the locale.
QByteArray writeXml(const Value &root);

} // namespace brinemark::plist
