// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"
#include "base/text/Texts.h"

#include <QKeySequence>

#include <span>

namespace brinemark
{

struct MenuTitle;

/// One menu item; a row without a title is a separator.
struct MenuRow {
    TextKey title;
    Command command = Command::NewFile;
    int tag = 0;
    QKeySequence::StandardKey standardKey = QKeySequence::UnknownKey;
    const char *shortcut = nullptr; ///< used where no standard key exists
    const char *icon = nullptr;
    /// Stands for one item for each thing that the command can be about at the time (see MenuChoices.h). Its title is
    /// shown, disabled, when there is none.
    bool hasChoices = false;
    const MenuTitle *submenu = nullptr; ///< opens this menu and sends no command
};

/// A menu of the bar or of an item.
struct MenuTitle {
    TextKey title;
    std::span<const MenuRow> rows;
};

/// The menu bar from left to right.
[[nodiscard]] std::span<const MenuTitle> mainMenus();

/// Calls `see` with each item of the menus that sends a command, those of submenus included.
template <class See>
constexpr void forEachCommandItem(std::span<const MenuTitle> menus, See &&see)
{
    for (const MenuTitle &menu : menus) {
        for (const MenuRow &row : menu.rows) {
            if (row.submenu)
                forEachCommandItem(std::span(row.submenu, 1), see);
            else if (!row.title.isEmpty())
                see(row);
        }
    }
}

} // namespace brinemark
