// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace brinemark
{

struct ItemData;
struct ConditionData;
struct ExpenseData;
struct InventoryData;
struct NoteData;
struct ScheduleData;

/// Sorts a record list in place by the field of this key, as the field's sort kind says; the schedule also takes "next"
/// for its due date. Records that compare as equal keep their order in both directions. An unknown key leaves the list
/// as it is, and so does any key on a livestock list, which has no order of its own.
void sortRecordList(std::vector<std::shared_ptr<ConditionData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<ExpenseData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<InventoryData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<NoteData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<ScheduleData>> &list, const QString &identifier, bool ascending);
template <class Item>
requires std::derived_from<Item, ItemData>
void sortRecordList(std::vector<std::shared_ptr<Item>> &, const QString &, bool) {}

} // namespace brinemark
