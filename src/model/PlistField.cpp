// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/PlistField.h"

#include "base/text/DateText.h"
#include "base/text/FromChars.h"
#include "base/text/NumberText.h"
#include "model/TankReadError.h"

#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace brinemark::plistfield
{

namespace
{

[[noreturn]] void throwWrongKind(QStringView key)
{
    throw TankReadError(QStringLiteral("the value of \"%1\" is of the wrong kind").arg(key));
}

/// Converts a text with `ofText`, a number or flag (as 1 or 0) with `ofDouble`.
/// \throws TankReadError for any other type
template <class Result, class OfText>
Result numberOf(const plist::Value &value, QStringView key, OfText ofText, Result (*ofDouble)(double))
{
    if (const QString *text = value.string())
        return ofText(*text);
    if (const qint64 *integer = value.integer())
        return ofDouble(double(*integer));
    if (const double *real = value.real())
        return ofDouble(*real);
    if (const bool *flag = value.flag())
        return ofDouble(*flag ? 1 : 0);
    throwWrongKind(key);
}

} // namespace

const plist::Dict &dictOf(const plist::Value &value, QStringView key)
{
    if (const plist::Dict *dict = value.dict())
        return *dict;
    throwWrongKind(key);
}

const plist::Array &arrayOf(const plist::Value &value, QStringView key)
{
    if (const plist::Array *array = value.array())
        return *array;
    throwWrongKind(key);
}

QString textOf(const plist::Value &value, QStringView key)
{
    if (const QString *text = value.string())
        return *text;
    if (const qint64 *integer = value.integer())
        return QString::number(*integer);
    if (const double *real = value.real())
        return QString::number(*real, 'g', QLocale::FloatingPointShortest);
    if (const bool *flag = value.flag())
        return flagText(*flag);
    if (const QDateTime *date = value.date())
        return fileDateText(date->toLocalTime());
    throwWrongKind(key);
}

float floatOf(const plist::Value &value, QStringView key)
{
    return numberOf<float>(value, key, leadingFloat, singlePrecision);
}

double doubleOf(const plist::Value &value, QStringView key)
{
    return numberOf<double>(value, key, leadingNumber, [](double number) { return number; });
}

qint32 integerOf(const plist::Value &value, QStringView key)
{
    return numberOf<qint32>(value, key, leadingInteger, wholeNumber);
}

bool flagOf(const plist::Value &value, QStringView key)
{
    return integerOf(value, key) != 0;
}

QDateTime dateOf(const plist::Value &value, QStringView key)
{
    return dateFromFileText(textOf(value, key));
}

Amount amountOf(const plist::Value &value, QStringView key)
{
    if (const qint64 *integer = value.integer())
        return *integer;
    return doubleOf(value, key);
}

QByteArray dataOf(const plist::Value &value, QStringView key)
{
    if (const QByteArray *data = value.data())
        return *data;
    throwWrongKind(key);
}

QString flagText(bool flag)
{
    return integerText(flag ? 1 : 0);
}

QString integerText(qint32 number)
{
    // floatText() shares the texts of small numbers, which most fields hold.
    return number >= -1 && number <= 255 ? floatText(float(number)) : QString::number(number);
}

double neatDouble(float number)
{
    if (!std::isfinite(number))
        return 0;
    char digits[32];
    const auto written = std::to_chars(std::begin(digits), std::end(digits), number);
    double result = 0;
    fromChars(std::begin(digits), written.ptr, result);
    return result;
}

qint32 wholeNumber(double number)
{
    if (std::isnan(number))
        return 0;
    constexpr double smallest = std::numeric_limits<qint32>::min();
    constexpr double largest = std::numeric_limits<qint32>::max();
    return qint32(std::clamp(number, smallest, largest));
}

float singlePrecision(double number)
{
    if (std::isnan(number))
        return 0;
    constexpr double largest = std::numeric_limits<float>::max();
    return float(std::clamp(number, -largest, largest));
}

} // namespace brinemark::plistfield
