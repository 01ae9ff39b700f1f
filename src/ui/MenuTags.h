// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

/// The tags that connect menu items with their rules, in the menu bar and in the menus of the lists. An item without a
/// rule has the tag 0.
namespace brinemark::menutag
{

enum : int {
    Toolbar = 1,
    Calculator = 2,
    Expand = 3,
    Collapse = 4,
    NeedsTank = 5,
    NewWaterTest = 6,
    NewActivity = 7,
    NewInventory = 8,
    NewNote = 9,
    Save = 10,
    InventorySelected = 11,
    NoteSelected = 12,
    ScheduleSelected = 13,
    ConditionSelected = 14,
    Revert = 15,
    ExpenseSelected = 16,
    Undo = 17,
    Redo = 18,
    OverdueNotice = 36,
    NewExpense = 37,
    ConditionColumns = 38,
    Delete = 39,
    SortBy = 40,
    SortAscending = 41,
    SortDescending = 42,
    ClearRecent = 43,
    TwoWaterTests = 100,
};

} // namespace brinemark::menutag
