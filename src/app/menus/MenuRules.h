// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"
#include "ui/MainView.h"
#include "ui/MenuTags.h"

#include <optional>

namespace brinemark
{

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

    /// Numbers that name no view have no list.
    [[nodiscard]] bool hasSelectedRow(MainView ofView) const
    {
        return qint32(ofView) >= 0 && qint32(ofView) < mainViewCount && listHasSelectedRow[qint32(ofView)];
    }

    int waterTests = 0;                ///< of the current tank
    std::optional<bool> sortAscending; ///< the order of the list on screen; none without a list or a tank
    bool hasRecentFiles = false;
    bool canUndo = false;
    bool canRedo = false;
    bool treeHasFocus = false;
};

/// The result of the rule of a tag.
struct MenuItemState {
    bool enabled = true;
    std::optional<TextKey> title; ///< set only for items whose title depends on the state
    std::optional<bool> checked;  ///< set only for items with a check mark
};

/// Whether the item with this tag is enabled, and its title if that depends on the state.
[[nodiscard]] MenuItemState menuItemState(int tag, const MenuState &state);

/// Whether the delete command can act on something in the current view.
[[nodiscard]] bool canDelete(MainView view, bool listHasSelectedRow);

/// Whether a toolbar item is enabled. Without a tank, only items that need none are (see ToolbarItems.h).
[[nodiscard]] bool toolbarItemEnabled(const QString &identifier, bool hasCurrentTank, bool canDelete);

} // namespace brinemark
