// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace brinemark
{

/// Every command that a menu, a shortcut, the toolbar or a button can send. Without the argument that one asks for it
/// does nothing.
enum class Command {
    NewFile,
    OpenFile,
    OpenRecent, ///< argument: the file's path
    ClearRecent,
    Save,
    SaveAs,
    Revert,
    Export,
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
    Graph,
    SortBy, ///< argument: the column's identifier
    SortAscending,
    SortDescending,
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

} // namespace brinemark
