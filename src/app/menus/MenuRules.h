// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"
#include "ui/MainView.h"

#include <optional>

namespace brinemark
{

/// The tags that connect menu items with their rules. An item without a rule has the tag 0.
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

/// The state of the window that the rules depend on, at the moment a menu opens.
struct MenuState {
    MainView view = MainView::None;
    bool hasCurrentTank = false;
    bool windowEdited = false;
    bool documentHasPath = false;
    bool toolbarVisible = false;
    bool calculatorVisible = false;
    bool overdueNoticeVisible = false;
    bool selectedRowExpandable = false; ///< the row is a tank or one of the four livestock groups
    bool selectedRowExpanded = false;
    bool listHasSelectedRow[mainViewCount] = {}; ///< by view: whether a row of its table is selected
    bool canUndo = false;
    bool canRedo = false;
    bool treeHasFocus = false;
};

/// The result of the rule of a tag.
struct MenuItemState {
    bool enabled = true;
    std::optional<TextKey> title; ///< set only for items whose title depends on the state
};

/// Whether the item with this tag is enabled, and its title if that depends on the state.
[[nodiscard]] MenuItemState menuItemState(int tag, const MenuState &state);

/// Whether the delete command can act on something in the current view.
[[nodiscard]] bool canDelete(MainView view, bool listHasSelectedRow);

/// Whether a toolbar item is enabled. Without a tank, only items that need none are (see ToolbarItems.h).
[[nodiscard]] bool toolbarItemEnabled(const QString &identifier, bool hasCurrentTank, bool canDelete);

} // namespace brinemark
