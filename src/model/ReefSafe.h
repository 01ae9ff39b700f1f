// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

/// Reef-safe codes: four characters read as a big-endian 32-bit number.
namespace brinemark::reefsafe
{

constexpr qint32 fourCharacterCode(const char (&characters)[5])
{
    return qint32(characters[0]) << 24 | qint32(characters[1]) << 16 | qint32(characters[2]) << 8 |
           qint32(characters[3]);
}

inline constexpr qint32 yes = fourCharacterCode("yes ");
inline constexpr qint32 no = fourCharacterCode("no  ");
inline constexpr qint32 unknown = fourCharacterCode("un  ");

} // namespace brinemark::reefsafe
