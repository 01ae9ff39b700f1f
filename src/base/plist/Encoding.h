// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace brinemark::plist
{

/// Converts the bytes of a file to valid UTF-8 in place. UTF-8 is left unchanged; UTF-16 and UTF-32 are recognised by
/// their byte order mark. `declared` is the encoding named inside the file, empty for none; UTF-8, US-ASCII and
/// ISO-8859-1 are supported. Returns the reason for a failure, empty on success.
QString convertToUtf8(QByteArray &bytes, QByteArrayView declared = {});

} // namespace brinemark::plist
