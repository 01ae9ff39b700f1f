// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "model/Amount.h"

/// Conversion between property-list values and the model's fields. Files hold many numbers and flags and all dates as
/// texts; values stored as numbers, flags or dates read the same, and in a text field they read as those texts. For a
/// value of a type that cannot be converted, the functions throw TankReadError, which names `key`.
namespace brinemark::plistfield
{

[[nodiscard]] const plist::Dict &dictOf(const plist::Value &value, QStringView key);
[[nodiscard]] const plist::Array &arrayOf(const plist::Value &value, QStringView key);

[[nodiscard]] QString textOf(const plist::Value &value, QStringView key);
[[nodiscard]] float floatOf(const plist::Value &value, QStringView key);
[[nodiscard]] double doubleOf(const plist::Value &value, QStringView key);
[[nodiscard]] qint32 integerOf(const plist::Value &value, QStringView key);
[[nodiscard]] bool flagOf(const plist::Value &value, QStringView key);
[[nodiscard]] QDateTime dateOf(const plist::Value &value, QStringView key); ///< null when the text is not a date
[[nodiscard]] Amount amountOf(const plist::Value &value, QStringView key);
[[nodiscard]] QByteArray dataOf(const plist::Value &value, QStringView key);

[[nodiscard]] QString flagText(bool flag);
[[nodiscard]] QString integerText(qint32 number);
/// The double of fewest digits that converts back to this float (7.2f gives 7.2, not 7.199999809...); 0 when the float
/// is not finite.
[[nodiscard]] double neatDouble(float number);

/// A double as a whole number of 32 bits: truncated toward zero, clamped; 0 for NaN.
[[nodiscard]] qint32 wholeNumber(double number);
/// A double in single precision, clamped to finite values; 0 for NaN.
[[nodiscard]] float singlePrecision(double number);

} // namespace brinemark::plistfield
