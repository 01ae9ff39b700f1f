// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/ReadResult.h"

#include <QByteArray>

namespace brinemark::plist
{

/// Reads the older text form of a property list: `{ key = value; }`, `( a, b )`, `<hex data>`, and strings, quoted or
/// made of letters, digits and `_./-:$+`. Comments are `//` to the end of the line and `/*` to `*/`. Every scalar is a
/// string or data; this form stores numbers and flags as strings.
///
/// ASCII, UTF-8, or UTF-16 with a byte order mark. Inside quotes `\n \t \r \a \b \f \v`, `\Uxxxx` (four hexadecimal
/// digits, a UTF-16 unit) and one to three octal digits (a Latin-1 character) are escapes; any other character after a
/// backslash means itself. A comma may follow the last element of an array; every entry of a dictionary ends with a
/// semicolon. The last value of a repeated key counts. Anything malformed, or nested deeper than `maximumDepth`, gives
/// an error that names the line and no value. No caller yet: the update check will read its description in this form.
ReadResult readText(const QByteArray &bytes);

} // namespace brinemark::plist
