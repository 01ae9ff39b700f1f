// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/ReadResult.h"

#include <QByteArray>

namespace brinemark::plist
{

/// Reads an XML property list: exactly one `<plist>` with exactly one value. The bytes are parsed in place; move them
/// in (`readXml(std::move(bytes))`) to avoid a copy. Their memory is freed before this returns.
///
/// UTF-8, or UTF-16 with a byte order mark. Comments, processing instructions, attributes and the document type are
/// ignored. The last value of a repeated key counts. An integer outside 64 bits, a real outside the range of a double,
/// a date that is not `YYYY-MM-DDThh:mm:ssZ`, a character that is not base64, and anything malformed or nested deeper
/// than `maximumDepth` give an error and no value. Never depends on the locale.
ReadResult readXml(QByteArray bytes);

} // namespace brinemark::plist
