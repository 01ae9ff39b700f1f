// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/StringPool.h"

#include <cstring>

namespace brinemark::plist
{

namespace
{

constexpr std::size_t firstSlots = 1024;
constexpr std::size_t mostSlots = 1 << 14;
constexpr std::size_t longestSearch = 16;

template <typename Word>
std::uint64_t load(const char *from)
{
    Word word;
    std::memcpy(&word, from, sizeof word);
    return word;
}

std::uint32_t hashOf(std::string_view text)
{
    constexpr std::uint64_t factor = 0x9e3779b97f4a7c15; // 2^64 divided by the golden ratio: Fibonacci hashing
    std::uint64_t hash = text.size() * factor;
    const auto mix = [&hash](std::uint64_t word) {
        hash = (hash ^ word) * factor;
        hash ^= hash >> 29;
    };
    const char *from = text.data();
    std::size_t left = text.size();
    for (; left > 8; from += 8, left -= 8)
        mix(load<std::uint64_t>(from));
    if (left >= 4)
        mix(load<std::uint32_t>(from) << 32 | load<std::uint32_t>(from + left - 4));
    else if (left > 0)
        mix(std::uint64_t(std::uint8_t(from[0])) << 16 | std::uint64_t(std::uint8_t(from[left / 2])) << 8 |
            std::uint8_t(from[left - 1]));
    return std::uint32_t(hash >> 32);
}

QString convert(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

} // namespace

StringPool::StringPool()
    : m_slots(firstSlots)
{
}

const QString &StringPool::string(std::string_view utf8)
{
    if (utf8.size() > longestShared)
        return unshared(utf8);
    const std::uint32_t hash = hashOf(utf8);
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t probe = 0; probe < longestSearch; ++probe) {
        Slot &slot = m_slots[(hash + probe) & mask];
        if (!slot.used) {
            if (m_used * 2 >= m_slots.size()) {
                if (m_slots.size() == mostSlots)
                    break;
                grow();
                return string(utf8);
            }
            ++m_used;
            slot.string = convert(utf8);
            slot.hash = hash;
            slot.size = std::uint8_t(utf8.size());
            slot.used = true;
            std::memcpy(slot.text.data(), utf8.data(), utf8.size());
            return slot.string;
        }
        if (slot.hash == hash && slot.size == utf8.size() &&
            std::memcmp(slot.text.data(), utf8.data(), utf8.size()) == 0)
            return slot.string;
    }
    return unshared(utf8);
}

const QString &StringPool::unshared(std::string_view utf8)
{
    m_unshared = convert(utf8);
    return m_unshared;
}

void StringPool::grow()
{
    std::vector<Slot> larger(m_slots.size() * 2);
    larger.swap(m_slots);
    const std::size_t mask = m_slots.size() - 1;
    m_used = 0;
    for (Slot &slot : larger) {
        if (!slot.used)
            continue;
        for (std::size_t probe = 0; probe < longestSearch; ++probe) {
            Slot &place = m_slots[(slot.hash + probe) & mask];
            if (!place.used) {
                place = std::move(slot);
                ++m_used;
                break;
            }
        }
    }
}

} // namespace brinemark::plist
