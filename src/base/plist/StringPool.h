#pragma once

#include <QString>

#include <cstdint>
#include <string_view>
#include <vector>

namespace brinemark::plist
{

/// Gives equal short texts one shared QString: keys and values such as "-1" repeat by the million in a tank file. Holds
/// on to the views it is asked for, which must stay valid and unchanged as long as the pool lives. Bounded in size and
/// in search length, so that no input makes it slow or large: what finds no room simply gets a string of its own.
class StringPool
{
public:
    StringPool();

    /// The string of a UTF-8 text that is known to be valid.
    QString string(std::string_view utf8);

private:
    struct Slot {
        const char *text = nullptr;
        std::uint32_t size = 0;
        std::uint32_t hash = 0;
        QString string;
    };

    void grow();

    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
};

} // namespace brinemark::plist
