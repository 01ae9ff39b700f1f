// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringView>

/// Numbers as text. Reading and writing for files never depend on a locale; localizeAndTrimZeros is for showing.
namespace brinemark
{

/// The decimal number at the start of a text: blanks, sign, digits with a full stop, exponent. Whatever follows is not
/// looked at; without a number 0. A number beyond the type's range reads as the largest finite one, one too small to
/// hold as 0.
[[nodiscard]] double leadingNumber(QStringView text);
[[nodiscard]] float leadingFloat(QStringView text);

/// The whole number at the start of a text (blanks, sign, digits), clamped to 32 bits; 0 when there is none.
[[nodiscard]] qint32 leadingInteger(QStringView text);

/// The text of a float in a file: at most seven significant digits, no trailing zeros (7 -> "7", 7.2f -> "7.2"). Whole
/// values in the 32-bit range are written out in full, so that an interval in seconds reads back exactly. Not a number
/// gives "0".
[[nodiscard]] QString floatText(float value);

/// What a person typed: a whole text in the user's notation, or else the number at its start with a full stop.
[[nodiscard]] double typedNumber(const QString &typed);
[[nodiscard]] float typedFloat(const QString &typed);

/// A number as shown in a field that can be typed over: the user's decimal separator, no grouping, up to so many
/// significant digits.
[[nodiscard]] QString shownNumber(double value, int digits);

/// A number as shown: three decimals, the user's decimal separator, trailing zeros removed down to one decimal.
[[nodiscard]] QString localizeAndTrimZeros(float value);

} // namespace brinemark
