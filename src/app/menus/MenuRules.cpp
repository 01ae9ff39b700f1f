// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/MenuRules.h"

#include "app/toolbar/ToolbarItems.h"

namespace brinemark
{

MenuItemState menuItemState(int tag, const MenuState &state)
{
    const auto enabledWhen = [](bool enabled) { return MenuItemState{enabled, {}, {}}; };
    const auto titled = [](bool visible, TextKey hide, TextKey show) {
        return MenuItemState{true, visible ? hide : show, {}};
    };
    const auto marked = [](bool enabled, bool checked) { return MenuItemState{enabled, {}, checked}; };
    const auto selectedIn = [&](MainView view) { return enabledWhen(state.hasSelectedRow(view)); };

    switch (tag) {
    case menutag::Toolbar:
        return titled(state.toolbarVisible, "HideToolbar"_key, "ShowToolbar"_key);
    case menutag::Calculator:
        return titled(state.calculatorVisible, "HideCalculatorWindow"_key, "ShowCalculatorWindow"_key);
    case menutag::OverdueNotice:
        return titled(state.overdueNoticeVisible, "HideNotificationWindow"_key, "ShowNotificationWindow"_key);
    case menutag::Expand:
        return enabledWhen(state.selectedRowExpandable && !state.selectedRowExpanded);
    case menutag::Collapse:
        return enabledWhen(state.selectedRowExpandable && state.selectedRowExpanded);
    case menutag::NeedsTank:
        return enabledWhen(state.hasCurrentTank);
    case menutag::NewWaterTest:
    case menutag::ConditionColumns:
        return enabledWhen(state.view == MainView::Conditions);
    case menutag::NewActivity:
        return enabledWhen(state.view == MainView::Schedule);
    case menutag::NewInventory:
        return enabledWhen(state.view == MainView::Inventory);
    case menutag::NewNote:
        return enabledWhen(state.view == MainView::Notes);
    case menutag::NewExpense:
        return enabledWhen(state.view == MainView::Expenses);
    case menutag::Save:
        return enabledWhen(state.windowEdited);
    case menutag::Revert:
        return enabledWhen(state.documentHasPath && state.windowEdited);
    case menutag::Delete:
        return enabledWhen(state.hasCurrentTank && canDelete(state.view, state.hasSelectedRow(state.view)));
    case menutag::TwoWaterTests:
        return enabledWhen(state.view == MainView::Conditions && state.waterTests >= 2);
    case menutag::SortBy:
        return enabledWhen(state.sortAscending.has_value());
    case menutag::SortAscending:
        return marked(state.sortAscending.has_value(), state.sortAscending == true);
    case menutag::SortDescending:
        return marked(state.sortAscending.has_value(), state.sortAscending == false);
    case menutag::ClearRecent:
        return enabledWhen(state.hasRecentFiles);
    case menutag::InventorySelected:
        return selectedIn(MainView::Inventory);
    case menutag::NoteSelected:
        return selectedIn(MainView::Notes);
    case menutag::ScheduleSelected:
        return selectedIn(MainView::Schedule);
    case menutag::ConditionSelected:
        return selectedIn(MainView::Conditions);
    case menutag::ExpenseSelected:
        return selectedIn(MainView::Expenses);
    case menutag::Undo:
        // While the tree has the focus, undo is reserved for its name editor, so the document's undo is disabled.
        return enabledWhen(state.canUndo && !state.treeHasFocus);
    case menutag::Redo:
        return enabledWhen(state.canRedo);
    default:
        return {};
    }
}

bool canDelete(MainView view, bool listHasSelectedRow)
{
    switch (view) {
    case MainView::LivestockGroup:
        return false;
    case MainView::Schedule:
    case MainView::Notes:
    case MainView::Conditions:
    case MainView::Inventory:
    case MainView::Expenses:
        return listHasSelectedRow;
    default:
        return true;
    }
}

bool toolbarItemEnabled(const QString &identifier, bool hasCurrentTank, bool canDelete)
{
    const ToolbarItem *item = toolbarItem(identifier);
    if (!hasCurrentTank)
        return item && !item->needsTank;
    return !item || item->command != Command::Delete || canDelete;
}

} // namespace brinemark
