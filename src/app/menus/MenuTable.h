// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/menus/MenuRules.h"

#include <QKeySequence>

#include <span>

namespace brinemark
{

/// The commands of the menus.
enum class Command {
    NewFile,
    OpenFile,
    Save,
    SaveAs,
    Revert,
    Print,
    Quit,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    SelectAll,
    Delete,
    Preferences,
    NewTank,
    NewFish,
    NewPlant,
    NewInvert,
    NewCoral,
    NewWaterTest,
    NewActivity,
    NewInventory,
    NewNote,
    NewExpense,
    Expand,
    Collapse,
    ConditionColumns,
    ToggleToolbar,
    CustomiseToolbar,
    ToggleCalculator,
    ToggleOverdue,
    Help,
    CheckForUpdates,
    MailingList,
    Feedback,
    ProductPage,
    About,
};

/// One menu item; a row without a title is a separator.
struct MenuRow {
    TextKey title;
    Command command = Command::NewFile;
    int tag = 0;
    QKeySequence::StandardKey standardKey = QKeySequence::UnknownKey;
    const char *shortcut = nullptr; ///< used where no standard key exists
    const char *icon = nullptr;
};

/// One menu of the bar.
struct MenuTitle {
    TextKey title;
    std::span<const MenuRow> rows;
};

/// The menu bar from left to right.
[[nodiscard]] std::span<const MenuTitle> mainMenus();

} // namespace brinemark
