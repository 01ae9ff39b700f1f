// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "model/RecordFields.h"

namespace brinemark
{

class Tank;
enum class ContainerKind;

/// Fills a blank record from its file form; the record's field table defines what a missing key means.
/// \throws TankReadError when a required text is missing or a value cannot be converted to its field's type
void readRecord(ItemData &record, const plist::Dict &dict);
void readRecord(ConditionData &record, const plist::Dict &dict);
void readRecord(ExpenseData &record, const plist::Dict &dict);
void readRecord(InventoryData &record, const plist::Dict &dict);
void readRecord(NoteData &record, const plist::Dict &dict);
void readRecord(ScheduleData &record, const plist::Dict &dict);
void readRecord(TankData &record, const plist::Dict &dict);

/// A record of the container's kind, built from its file form. Its tank is `parent`, but it is in none of the tank's
/// lists.
/// \throws TankReadError as readRecord does
[[nodiscard]] std::shared_ptr<Record> recordFromDict(ContainerKind kind, const plist::Dict &dict, Tank *parent);

/// The file form of a record. Missing dates, amounts, pictures and target names have no key.
[[nodiscard]] plist::Dict recordDict(const Record &record);

/// One value of the file form; none when there is no such key.
[[nodiscard]] plist::Value fileValue(const Record &record, QStringView fileKey);

} // namespace brinemark
