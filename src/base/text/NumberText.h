// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringView>

/// Numbers as text. The `leading` functions, floatText and fixedText never depend on the locale; the other functions
/// use the user's locale.
namespace brinemark
{

/// The decimal number at the start of a text: blanks, sign, digits with a full stop, exponent. The rest of the text is
/// ignored; 0 when there is no number. A number beyond the type's range gives the largest finite value, one that is too
/// small for the type gives 0.
[[nodiscard]] double leadingNumber(QStringView text);
[[nodiscard]] float leadingFloat(QStringView text);

/// The whole number at the start of a text (blanks, sign, digits), clamped to 32 bits; 0 when there is none.
[[nodiscard]] qint32 leadingInteger(QStringView text);

/// The text of a float in a file: at most seven significant digits, no trailing zeros (7 -> "7", 7.2f -> "7.2"). Whole
/// values in the 32-bit range are written out in full, so that an interval in seconds reads back exactly. Not a number
/// gives "0".
[[nodiscard]] QString floatText(float value);

/// The number that a person typed: the whole text in the user's notation or, if that fails, the number at its start
/// with a full stop as decimal separator.
[[nodiscard]] double typedNumber(const QString &typed);
[[nodiscard]] float typedFloat(const QString &typed);

/// A number for an editable field: the user's decimal separator, no grouping, at most `digits` significant digits.
[[nodiscard]] QString shownNumber(double value, int digits);

/// A number with this many decimals (0 or more) and a full stop. Exact halves are rounded to the even digit, as the
/// format
/// "%.2f" does and Qt does not (7.125 -> "7.12").
[[nodiscard]] QString fixedText(double value, int decimals);

/// A number for display: three decimals, the user's decimal separator, trailing zeros removed down to one decimal.
[[nodiscard]] QString localizeAndTrimZeros(float value);

} // namespace brinemark
