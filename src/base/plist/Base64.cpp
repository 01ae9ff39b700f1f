// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/Base64.h"

#include <QtEndian>

#include <array>
#include <cstdint>

namespace brinemark::plist
{

namespace
{

constexpr std::uint32_t invalid = 0x80000000;

/// For each position in a group of four characters: the bits that a character contributes to the group's three bytes,
/// first byte lowest. Decoding a group takes four look-ups, and one test of the topmost bit shows whether all four
/// characters are base64 digits.
using PlaceTables = std::array<std::array<std::uint32_t, 256>, 4>;

constexpr PlaceTables makePlaceTables()
{
    PlaceTables tables{};
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t place = 0; place < tables.size(); ++place) {
        tables[place].fill(invalid);
        for (std::size_t value = 0; value < digits.size(); ++value) {
            const std::uint32_t bits = std::uint32_t(value) << (18 - 6 * place);
            tables[place][std::uint8_t(digits[value])] = bits >> 16 | (bits & 0xff00) | (bits & 0xff) << 16;
        }
    }
    return tables;
}

constexpr PlaceTables places = makePlaceTables();

constexpr bool isSpace(std::uint8_t c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

// Replaces QByteArray::fromBase64, which either rejects white space as an error or skips errors like white space.
// Removing the line breaks first would copy every picture once more.
std::optional<QByteArray> decodeBase64(std::string_view text)
{
    QByteArray result(qsizetype(text.size() / 4 * 3 + 4), Qt::Uninitialized);
    char *out = result.data();
    const auto *in = reinterpret_cast<const std::uint8_t *>(text.data());
    const auto *const end = in + text.size();
    std::uint32_t group = 0;
    std::size_t digits = 0;
    std::size_t pads = 0;
    while (in != end) {
        if (digits == 0 && pads == 0) {
            for (; end - in >= 4; in += 4, out += 3) {
                const std::uint32_t bytes = places[0][in[0]] | places[1][in[1]] | places[2][in[2]] | places[3][in[3]];
                if (bytes & invalid)
                    break;
                qToLittleEndian(bytes, out); // writes four bytes; the next group overwrites the fourth
            }
            if (in == end)
                break;
        }
        const std::uint8_t c = *in++;
        if (isSpace(c))
            continue;
        if (c == '=') {
            ++pads;
            continue;
        }
        const std::uint32_t bits = places[digits][c];
        if (bits == invalid || pads > 0)
            return std::nullopt;
        group |= bits;
        if (++digits == 4) {
            qToLittleEndian(group, out);
            out += 3;
            group = 0;
            digits = 0;
        }
    }
    if (digits == 1 || (pads > 0 && (digits == 0 || digits + pads != 4)))
        return std::nullopt;
    for (std::size_t byte = 1; byte < digits; ++byte, group >>= 8)
        *out++ = char(group);
    result.truncate(out - result.constData());
    return result;
}

} // namespace brinemark::plist
