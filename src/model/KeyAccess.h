// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringView>
#include <QVariant>

namespace brinemark
{

struct Record;

/// A record's fields by key, as table columns and undo steps name them ("ph", "activity", "preferredValue" ...).

/// The value: float, int, bool, QString or QDateTime; an amount as int, double or nothing; a picture as QImage. Invalid
/// for an unknown key, and for a date or an amount that is not there.
[[nodiscard]] QVariant valueForKey(const Record &record, QStringView key);

/// Stores a value, converted to the field's type: text by its leading number, numbers to text, anything but 0 as YES.
/// Flags of the schedule go through their setters. Answers false, and stores nothing, for an unknown key.
///
/// Nothing (an invalid variant) clears texts, dates, amounts and pictures. In a number or flag it stores 0 for a water
/// test and 1 for the inventory's count; other records refuse it (false).
bool setValueForKey(Record &record, QStringView key, const QVariant &value);

} // namespace brinemark
