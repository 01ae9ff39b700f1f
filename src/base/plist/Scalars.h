// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"

#include <string_view>

namespace brinemark::plist
{

// Numbers and dates as texts of XML property lists, independent of the locale. The parse functions ignore surrounding
// white space and return no value for a malformed text.

Value parseInteger(std::string_view text); ///< decimal or 0x, optional sign, within signed 64 bits
Value parseReal(std::string_view text);    ///< also nan, inf, infinity in any case, with optional sign
Value parseDate(std::string_view text);    ///< YYYY-MM-DDThh:mm:ssZ

QByteArray realText(double real); ///< the shortest text that reads back as the same number
QByteArray dateText(const QDateTime &date);

} // namespace brinemark::plist
