// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "model/Amount.h"

/// Property-list values as the fields of the model. Files keep many numbers and flags as texts; a number or flag that
/// stands as such reads the same. A value of a kind that cannot say what is wanted throws TankReadError, naming `key`.
namespace brinemark::plistfield
{

[[nodiscard]] const plist::Dict &dictOf(const plist::Value &value, QStringView key);
[[nodiscard]] const plist::Array &arrayOf(const plist::Value &value, QStringView key);

[[nodiscard]] QString textOf(const plist::Value &value, QStringView key);
[[nodiscard]] float floatOf(const plist::Value &value, QStringView key);
[[nodiscard]] double doubleOf(const plist::Value &value, QStringView key);
[[nodiscard]] qint32 integerOf(const plist::Value &value, QStringView key);
[[nodiscard]] bool flagOf(const plist::Value &value, QStringView key);
[[nodiscard]] QDateTime dateOf(const plist::Value &value, QStringView key); ///< null when the text is no date
[[nodiscard]] Amount amountOf(const plist::Value &value, QStringView key);
[[nodiscard]] QByteArray dataOf(const plist::Value &value, QStringView key);

[[nodiscard]] QString flagText(bool flag);
[[nodiscard]] QString integerText(qint32 number);
/// The double of fewest digits that reads back to this float (7.2f gives 7.2, not 7.199999809...); 0 for no number.
[[nodiscard]] double neatDouble(float number);

/// A double as a whole number of 32 bits: cut toward zero, clamped; 0 for no number.
[[nodiscard]] qint32 wholeNumber(double number);
/// A double in single precision, clamped to finite values; 0 for no number.
[[nodiscard]] float singlePrecision(double number);

} // namespace brinemark::plistfield
