// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

namespace brinemark::plist
{

/// Decodes base64 with any white space between the characters. Nothing for a character that is neither, for text after
/// the padding, and for a last group of a single character. Padding may be missing, but what stands there must fit.
std::optional<QByteArray> decodeBase64(std::string_view text);

} // namespace brinemark::plist
