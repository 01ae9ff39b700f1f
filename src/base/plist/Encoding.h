// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace brinemark::plist
{

/// Turns the bytes of a file into valid UTF-8: what already is UTF-8 passes through untouched; UTF-16 and UTF-32 are
/// known by their byte order mark. `declared` is an encoding named inside the file, empty for none; UTF-8, US-ASCII and
/// ISO-8859-1 are known. Answers the reason why it cannot be done, empty when it could.
QString convertToUtf8(QByteArray &bytes, QByteArrayView declared = {});

} // namespace brinemark::plist
