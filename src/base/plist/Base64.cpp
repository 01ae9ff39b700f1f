#include "base/plist/Base64.h"

#include <array>
#include <cstdint>

namespace brinemark::plist
{

namespace
{

enum Class : std::uint8_t { space = 0x40, padding = 0x41, invalid = 0x80 };

constexpr std::array<std::uint8_t, 256> makeTable()
{
    std::array<std::uint8_t, 256> table{};
    table.fill(invalid);
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t i = 0; i < digits.size(); ++i)
        table[std::uint8_t(digits[i])] = std::uint8_t(i);
    for (const char c : {' ', '\t', '\n', '\r'})
        table[std::uint8_t(c)] = space;
    table[std::uint8_t('=')] = padding;
    return table;
}

constexpr auto table = makeTable();

} // namespace

// Our own because QByteArray::fromBase64 either refuses white space along with errors or skips errors along with white
// space, and taking the line breaks out first would cost another copy of every picture.
std::optional<QByteArray> decodeBase64(std::string_view text)
{
    QByteArray result(qsizetype(text.size() / 4 * 3 + 3), Qt::Uninitialized);
    char *out = result.data();
    const auto *in = reinterpret_cast<const std::uint8_t *>(text.data());
    const auto *const end = in + text.size();
    std::uint32_t group = 0;
    int digits = 0;
    int pads = 0;
    while (in != end) {
        if (digits == 0 && pads == 0) {
            while (end - in >= 4) {
                const std::uint32_t a = table[in[0]], b = table[in[1]], c = table[in[2]], d = table[in[3]];
                if ((a | b | c | d) >= space)
                    break;
                const std::uint32_t whole = a << 18 | b << 12 | c << 6 | d;
                out[0] = char(whole >> 16);
                out[1] = char(whole >> 8);
                out[2] = char(whole);
                out += 3;
                in += 4;
            }
            if (in == end)
                break;
        }
        const std::uint8_t value = table[*in++];
        if (value == space)
            continue;
        if (value == padding) {
            ++pads;
            continue;
        }
        if (value == invalid || pads > 0)
            return std::nullopt;
        group = group << 6 | value;
        if (++digits == 4) {
            *out++ = char(group >> 16);
            *out++ = char(group >> 8);
            *out++ = char(group);
            group = 0;
            digits = 0;
        }
    }
    if (digits == 1 || (pads > 0 && digits + pads != 4))
        return std::nullopt;
    if (digits >= 2)
        *out++ = char(group >> (digits == 2 ? 4 : 10));
    if (digits == 3)
        *out++ = char(group >> 2);
    result.truncate(out - result.constData());
    return result;
}

} // namespace brinemark::plist
