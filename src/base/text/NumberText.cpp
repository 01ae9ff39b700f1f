// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/NumberText.h"

#include "base/text/FromChars.h"

#include <QLocale>
#include <QVarLengthArray>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace brinemark
{

namespace
{

constexpr bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}
constexpr bool isBlank(QChar c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r') || c == u'\u00a0';
}

/// Skips blanks and a sign; returns whether it was a minus.
bool skipToDigits(QStringView text, qsizetype &at)
{
    while (at < text.size() && isBlank(text[at]))
        ++at;
    if (at == text.size() || (text[at] != u'-' && text[at] != u'+'))
        return false;
    return text[at++] == u'-';
}

/// The longest run of characters that forms a number without a sign, and the number's order of magnitude.
struct Digits {
    QVarLengthArray<char, 64> characters;
    qint64 magnitude = 0; ///< digits before the full stop after applying the exponent
};

Digits cutDigits(QStringView text, qsizetype at)
{
    Digits result;
    bool anyDigit = false;
    bool point = false;
    bool nonZero = false;
    for (; at < text.size(); ++at) {
        const QChar c = text[at];
        if (isDigit(c)) {
            anyDigit = true;
            nonZero = nonZero || c != u'0';
            if (nonZero && !point)
                ++result.magnitude;
            else if (!nonZero && point)
                --result.magnitude;
        } else if (c == u'.' && !point) {
            point = true;
        } else {
            break;
        }
        result.characters.append(char(c.unicode()));
    }
    if (!anyDigit) {
        result.characters.clear();
        return result;
    }
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        qsizetype end = at + 1;
        const bool negative = end < text.size() && text[end] == u'-';
        if (end < text.size() && (text[end] == u'-' || text[end] == u'+'))
            ++end;
        qint64 exponent = 0;
        const qsizetype firstDigit = end;
        for (; end < text.size() && isDigit(text[end]); ++end)
            exponent = std::min<qint64>(exponent * 10 + (text[end].unicode() - u'0'), 1'000'000);
        if (end > firstDigit) {
            result.characters.append('e');
            result.characters.append(negative ? '-' : '+');
            for (qsizetype i = firstDigit; i < end; ++i)
                result.characters.append(char(text[i].unicode()));
            result.magnitude += negative ? -exponent : exponent;
        }
    }
    return result;
}

template <class Number>
Number leading(QStringView text)
{
    qsizetype at = 0;
    const bool negative = skipToDigits(text, at);
    const Digits digits = cutDigits(text, at);
    if (digits.characters.isEmpty())
        return 0;
    Number number = 0;
    const auto [end, error] = fromChars(digits.characters.begin(), digits.characters.end(), number);
    if (error == std::errc::result_out_of_range)
        number = digits.magnitude > 0 ? std::numeric_limits<Number>::max() : Number(0);
    return negative ? -number : number;
}

template <class Number>
Number typedAs(const QString &typed, Number (QLocale::*parse)(const QString &, bool *) const)
{
    bool ok = false;
    const Number number = (QLocale().*parse)(typed.trimmed(), &ok);
    return ok ? number : leading<Number>(typed);
}

} // namespace

double leadingNumber(QStringView text)
{
    return leading<double>(text);
}

float leadingFloat(QStringView text)
{
    return leading<float>(text);
}

qint32 leadingInteger(QStringView text)
{
    qsizetype at = 0;
    const bool negative = skipToDigits(text, at);
    qint64 number = 0;
    constexpr qint64 beyond = qint64(std::numeric_limits<qint32>::max()) + 1;
    for (; at < text.size() && isDigit(text[at]); ++at)
        number = std::min(number * 10 + (text[at].unicode() - u'0'), beyond);
    return qint32(negative ? -number : std::min(number, beyond - 1));
}

QString floatText(float value)
{
    // Nearly all numbers in a file are -1 (not tested) or small whole numbers, so their texts are shared.
    constexpr int firstShared = -1;
    constexpr int lastShared = 255;
    static const auto shared = [] {
        std::array<QString, lastShared - firstShared + 1> texts;
        for (int i = firstShared; i <= lastShared; ++i)
            texts[std::size_t(i - firstShared)] = QString::number(i);
        return texts;
    }();

    if (!std::isfinite(value))
        return shared[std::size_t(0 - firstShared)];
    if (value >= -2147483648.0F && value < 2147483648.0F && std::trunc(value) == value) {
        const int whole = int(value);
        if (whole >= firstShared && whole <= lastShared)
            return shared[std::size_t(whole - firstShared)];
        return QString::number(whole);
    }
    std::array<char, 32> buffer;
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 7);
    return QString::fromLatin1(buffer.data(), end - buffer.data());
}

double typedNumber(const QString &typed)
{
    return typedAs(typed, &QLocale::toDouble);
}

float typedFloat(const QString &typed)
{
    return typedAs(typed, &QLocale::toFloat);
}

QString shownNumber(double value, int digits)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'g', digits);
}

QString fixedText(double value, int decimals)
{
    constexpr int longestWholePart = std::numeric_limits<double>::max_exponent10 + 3; // sign and point included
    QByteArray digits(longestWholePart + decimals, '\0');
    char *const begin = digits.data();
    const auto [end, error] = std::to_chars(begin, begin + digits.size(), value, std::chars_format::fixed, decimals);
    return QString::fromLatin1(begin, end - begin);
}

QString localizeAndTrimZeros(float value)
{
    QString text = fixedText(double(value), 3);
    const qsizetype point = text.indexOf(QLatin1Char('.'));
    if (point < 0)
        return text;
    while (text.endsWith(QLatin1Char('0')) && text.size() > point + 2)
        text.chop(1);
    return text.replace(point, 1, QLocale().decimalPoint());
}

} // namespace brinemark
