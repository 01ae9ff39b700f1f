// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

namespace brinemark::plist
{

/// Decodes base64 with any white space between the characters. Returns nothing for any other character, for digits
/// after the padding, for a last group of a single character, and for padding of the wrong length. Padding may be
/// missing.
std::optional<QByteArray> decodeBase64(std::string_view text);

} // namespace brinemark::plist
