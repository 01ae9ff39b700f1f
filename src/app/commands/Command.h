// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace brinemark
{

/// Every command that a menu, a shortcut, the toolbar or a button can send.
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

} // namespace brinemark
