// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringView>
#include <QVariant>

namespace brinemark
{

struct Record;

/// The value of a record's field by its key ("ph", "activity", "preferredValue" ...), as table columns and undo steps
/// name it: float, int, bool, QString or QDateTime; an amount as int or double; a picture as QImage. Invalid for an
/// unknown key, and for a date, amount or picture that the record does not have.
[[nodiscard]] QVariant valueForKey(const Record &record, QStringView key);

/// Stores a value, converted to the field's type: text by its leading number, numbers to text, anything but 0 as YES.
/// Flags of the schedule are stored by their setters. Returns false, and stores nothing, for an unknown key.
///
/// An invalid variant clears texts, dates, amounts and pictures. In a number or flag it stores 0 for a water test and 1
/// for the inventory's count; for other records the function returns false and stores nothing.
bool setValueForKey(Record &record, QStringView key, const QVariant &value);

} // namespace brinemark
