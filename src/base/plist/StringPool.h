// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace brinemark::plist
{

/// Gives equal short texts one shared QString: keys and values such as "-1" repeat by the million in a tank file.
/// Bounded in size and in search length, so that no input makes it slow or large: what finds no room simply gets a
/// string of its own.
class StringPool
{
public:
    StringPool();

    /// The string of a UTF-8 text that is known to be valid; the reference holds until the next call.
    const QString &string(std::string_view utf8);

private:
    /// Longer texts are notes and seldom repeat.
    static constexpr std::size_t longestShared = 32;

    /// The text stands in the slot itself, so that a look-up touches one cache line and not the place where it was
    /// first seen.
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
