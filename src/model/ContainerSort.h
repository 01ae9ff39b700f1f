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

/// Sorts a record list in place; descending is the exact negation of ascending, equal records keep their order.
/// Livestock lists have no order of their own: nothing is done. Unknown identifiers leave the list as it is.
void sortRecordList(std::vector<std::shared_ptr<ConditionData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<ExpenseData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<InventoryData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<NoteData>> &list, const QString &identifier, bool ascending);
void sortRecordList(std::vector<std::shared_ptr<ScheduleData>> &list, const QString &identifier, bool ascending);
template <class Item>
requires std::derived_from<Item, ItemData>
void sortRecordList(std::vector<std::shared_ptr<Item>> &, const QString &, bool) {}

} // namespace brinemark
