// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"
#include "ui/MainView.h"

#include <optional>

namespace brinemark
{

/// The tags by which menu items are known to their validation rules. Items without a rule carry none (0).
namespace menutag
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
};
}

/// What the rules look at: the state of the window at the moment a menu opens.
struct MenuState {
    MainView view = MainView::None;
    bool hasCurrentTank = false;
    bool windowEdited = false;
    bool documentHasPath = false;
    bool toolbarVisible = false;
    bool calculatorVisible = false;
    bool overdueNoticeVisible = false;
    bool selectedRowExpandable = false; ///< a tank or one of the four livestock groups
    bool selectedRowExpanded = false;
    bool listHasSelectedRow[mainViewCount] = {}; ///< by view: its journal table has a selected row
    bool canUndo = false;
    bool canRedo = false;
    bool treeHasFocus = false;
};

/// What the rule of a tag says.
struct MenuItemState {
    bool enabled = true;
    std::optional<TextKey> title; ///< set for items whose title follows the state
};

/// Whether the item of a tag is enabled, and its title where that changes.
[[nodiscard]] MenuItemState menuItemState(int tag, const MenuState &state);

/// Whether the delete command has something to act on in the view on screen.
[[nodiscard]] bool canDelete(MainView view, bool listHasSelectedRow);

/// Whether a toolbar item is enabled: without a tank only what needs none (see ToolbarItems.h).
[[nodiscard]] bool toolbarItemEnabled(const QString &identifier, bool hasCurrentTank, bool canDelete);

} // namespace brinemark
