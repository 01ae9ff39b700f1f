// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace brinemark::plist
{

/// Returns one shared QString for equal short texts: keys and values such as "-1" repeat by the million in a tank file.
/// Its size and the length of a search are limited, so that no input makes it slow or large; a text that finds no free
/// slot gets an unshared string.
class StringPool
{
public:
    StringPool();

    /// The string of a text, which must be valid UTF-8. The reference is valid until the next call.
    const QString &string(std::string_view utf8);

private:
    /// Bytes. Longer texts are notes, which seldom repeat.
    static constexpr std::size_t longestShared = 32;

    /// Holds the UTF-8 text itself, so that a look-up touches one cache line and not the memory of the QString.
    struct alignas(64) Slot {
        QString string;
        std::uint32_t hash = 0;
        std::uint8_t size = 0;
        bool used = false;
        std::array<char, longestShared> text;
    };

    const QString &unshared(std::string_view utf8);
    void grow();

    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
    QString m_unshared;
};

} // namespace brinemark::plist
