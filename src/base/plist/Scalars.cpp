// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/Scalars.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace brinemark::plist
{

namespace
{

using std::string_view;

string_view trimmed(string_view text)
{
    constexpr string_view space = " \t\r\n";
    const auto first = text.find_first_not_of(space);
    return first == string_view::npos ? string_view() : text.substr(first, text.find_last_not_of(space) - first + 1);
}

/// Removes a leading sign; returns whether it was a minus.
bool takeSign(string_view &text)
{
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    return negative;
}

/// The value of a text of decimal digits; -1 when it contains another character.
int digits(string_view text)
{
    int number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return -1;
        number = number * 10 + (c - '0');
    }
    return number;
}

} // namespace

Value parseInteger(string_view text)
{
    text = trimmed(text);
    const bool negative = takeSign(text);
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    std::uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), magnitude, base);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return {};
    constexpr auto most = std::uint64_t(std::numeric_limits<qint64>::max());
    if (magnitude > most + (negative ? 1 : 0))
        return {};
    return Value(qint64(negative ? 0 - magnitude : magnitude));
}

Value parseReal(string_view text)
{
    text = trimmed(text);
    string_view unsignedText = text;
    const bool negative = takeSign(unsignedText);
    if (unsignedText.empty())
        return {};
    const auto word = QByteArray(unsignedText.data(), qsizetype(unsignedText.size())).toLower();
    if (word == "nan")
        return Value(std::numeric_limits<double>::quiet_NaN());
    if (word == "inf" || word == "infinity")
        return Value(std::copysign(std::numeric_limits<double>::infinity(), negative ? -1.0 : 1.0));
    // toDouble() also skips white space such as a form feed, so only the characters of a number are let through.
    constexpr string_view numberCharacters = "0123456789.eE+-";
    if (unsignedText.find_first_not_of(numberCharacters) != string_view::npos)
        return {};
    bool ok = false;
    const double real = QByteArray::fromRawData(text.data(), qsizetype(text.size())).toDouble(&ok);
    return ok ? Value(real) : Value();
}

Value parseDate(string_view text)
{
    text = trimmed(text);
    constexpr string_view form = "dddd-dd-ddTdd:dd:ddZ";
    const auto fits = [](char c, char wanted) { return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted; };
    if (text.size() != form.size() || !std::equal(text.begin(), text.end(), form.begin(), fits))
        return {};
    const auto part = [text](int from, int count) {
        return digits(text.substr(std::size_t(from), std::size_t(count)));
    };
    const QDate day(part(0, 4), part(5, 2), part(8, 2));
    const QTime time(part(11, 2), part(14, 2), part(17, 2));
    // QDateTime would silently replace an invalid time of day by midnight.
    return day.isValid() && time.isValid() ? Value(QDateTime(day, time, Qt::UTC)) : Value();
}

QByteArray realText(double real)
{
    if (std::isnan(real))
        return QByteArrayLiteral("nan");
    if (std::isinf(real))
        return real < 0 ? QByteArrayLiteral("-infinity") : QByteArrayLiteral("+infinity");
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), real).ptr;
    return {text.data(), qsizetype(end - text.data())};
}

QByteArray dateText(const QDateTime &date)
{
    return date.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ")).toLatin1();
}

} // namespace brinemark::plist
