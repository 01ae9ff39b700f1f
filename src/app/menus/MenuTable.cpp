// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/MenuTable.h"

#include "app/menus/MenuRules.h"
#include "base/TableChecks.h"

namespace brinemark
{

namespace
{

constexpr MenuRow separator{};

constexpr MenuRow opening(const MenuTitle &menu, int tag = 0)
{
    return {.title = menu.title, .tag = tag, .submenu = &menu};
}

constexpr MenuRow recentMenu[] = {
    {.title = "MenuRecentNone"_key, .command = Command::OpenRecent, .hasChoices = true},
    separator,
    {"MenuRecentClear"_key, Command::ClearRecent, menutag::ClearRecent},
};
constexpr MenuTitle recentTitle{"MenuFileOpenRecent"_key, recentMenu};

constexpr MenuRow fileMenu[] = {
    {"MenuFileNew"_key, Command::NewFile, 0, QKeySequence::New, nullptr, "NewFile"},
    {"MenuFileOpen"_key, Command::OpenFile, 0, QKeySequence::Open, nullptr, "Open"},
    opening(recentTitle),
    separator,
    {"MenuFileSave"_key, Command::Save, menutag::Save, QKeySequence::Save, nullptr, "Save"},
    {"MenuFileSaveAs"_key, Command::SaveAs, 0, QKeySequence::SaveAs},
    {"MenuFileRevert"_key, Command::Revert, menutag::Revert},
    separator,
    {"MenuFileExport"_key, Command::Export, menutag::TwoWaterTests, QKeySequence::UnknownKey, "Ctrl+E", "Export"},
    separator,
    {"MenuFilePrint"_key, Command::Print, 0, QKeySequence::Print, nullptr, "Print"},
    separator,
    {"MenuFileQuit"_key, Command::Quit, 0, QKeySequence::Quit},
};

constexpr MenuRow editMenu[] = {
    {"MenuEditUndo"_key, Command::Undo, menutag::Undo, QKeySequence::Undo, nullptr, "Undo"},
    {"MenuEditRedo"_key, Command::Redo, menutag::Redo, QKeySequence::Redo, nullptr, "Redo"},
    separator,
    {"MenuEditCut"_key, Command::Cut, 0, QKeySequence::Cut},
    {"MenuEditCopy"_key, Command::Copy, 0, QKeySequence::Copy, nullptr, "Copy"},
    {"MenuEditPaste"_key, Command::Paste, 0, QKeySequence::Paste, nullptr, "Paste"},
    {"MenuEditSelectAll"_key, Command::SelectAll, 0, QKeySequence::SelectAll},
    separator,
    // Delete has no shortcut: the tree and the lists handle the Delete key themselves while they have the focus, and a
    // text field must keep it for editing.
    {"MenuEditDelete"_key, Command::Delete, menutag::Delete, QKeySequence::UnknownKey, nullptr, "Delete"},
    separator,
    {"MenuEditPreferences"_key, Command::Preferences, 0, QKeySequence::UnknownKey, "Ctrl+,", "Settings"},
};

constexpr MenuRow tankMenu[] = {
    {"MenuTankNewTank"_key, Command::NewTank, 0, QKeySequence::UnknownKey, "Ctrl+Shift+N", "NewTankBig"},
    separator,
    {"MenuTankNewFish"_key, Command::NewFish, menutag::NeedsTank, QKeySequence::UnknownKey, "Ctrl+1", "NewFishBig"},
    {"MenuTankNewPlant"_key, Command::NewPlant, menutag::NeedsTank, QKeySequence::UnknownKey, "Ctrl+2", "PlantNew"},
    {"MenuTankNewInvert"_key, Command::NewInvert, menutag::NeedsTank, QKeySequence::UnknownKey, "Ctrl+3",
     "InvertebratesNew"},
    {"MenuTankNewCoral"_key, Command::NewCoral, menutag::NeedsTank, QKeySequence::UnknownKey, "Ctrl+4", "CoralNew"},
    separator,
    {"MenuTankNewWaterTest"_key, Command::NewWaterTest, menutag::NewWaterTest, QKeySequence::UnknownKey, "Ctrl+5"},
    {"MenuTankNewActivity"_key, Command::NewActivity, menutag::NewActivity, QKeySequence::UnknownKey, "Ctrl+6"},
    {"MenuTankNewInventory"_key, Command::NewInventory, menutag::NewInventory, QKeySequence::UnknownKey, "Ctrl+7"},
    {"MenuTankNewExpense"_key, Command::NewExpense, menutag::NewExpense, QKeySequence::UnknownKey, "Ctrl+8"},
    {"MenuTankNewNote"_key, Command::NewNote, menutag::NewNote, QKeySequence::UnknownKey, "Ctrl+9"},
};

constexpr MenuRow sortMenu[] = {
    {.title = "MenuSortNone"_key, .command = Command::SortBy, .hasChoices = true},
    separator,
    {"MenuSortAscending"_key, Command::SortAscending, menutag::SortAscending, QKeySequence::UnknownKey,
     "Ctrl+Shift+Up"},
    {"MenuSortDescending"_key, Command::SortDescending, menutag::SortDescending, QKeySequence::UnknownKey,
     "Ctrl+Shift+Down"},
};
constexpr MenuTitle sortTitle{"MenuViewSortBy"_key, sortMenu};

constexpr MenuRow viewMenu[] = {
    {"HideToolbar"_key, Command::ToggleToolbar, menutag::Toolbar, QKeySequence::UnknownKey, "Ctrl+Alt+T"},
    {"MenuViewCustomiseToolbar"_key, Command::CustomiseToolbar},
    separator,
    {"MenuViewExpand"_key, Command::Expand, menutag::Expand, QKeySequence::UnknownKey, "Ctrl+Right"},
    {"MenuViewCollapse"_key, Command::Collapse, menutag::Collapse, QKeySequence::UnknownKey, "Ctrl+Left"},
    separator,
    opening(sortTitle, menutag::SortBy),
    {"Condition Columns..."_key, Command::ConditionColumns, menutag::ConditionColumns},
    {"MenuViewGraph"_key, Command::Graph, menutag::TwoWaterTests, QKeySequence::UnknownKey, "Ctrl+G", "Graph"},
};

constexpr MenuRow windowMenu[] = {
    {"ShowCalculatorWindow"_key, Command::ToggleCalculator, menutag::Calculator, QKeySequence::UnknownKey, "Ctrl+K",
     "Convert"},
    {"ShowNotificationWindow"_key, Command::ToggleOverdue, menutag::OverdueNotice, QKeySequence::UnknownKey, "Ctrl+D",
     "NoteWindow"},
};

constexpr MenuRow helpMenu[] = {
    {"MenuHelpHelp"_key, Command::Help, 0, QKeySequence::HelpContents, nullptr, "Help"},
    separator,
    {"MenuHelpUpdates"_key, Command::CheckForUpdates, 0, QKeySequence::UnknownKey, nullptr, "Update"},
    {"MenuHelpMailingList"_key, Command::MailingList, 0, QKeySequence::UnknownKey, nullptr, "Mail"},
    {"MenuHelpFeedback"_key, Command::Feedback},
    {"MenuHelpProductPage"_key, Command::ProductPage, 0, QKeySequence::UnknownKey, nullptr, "Web"},
    separator,
    {"MenuHelpAbout"_key, Command::About},
};

constexpr MenuTitle menus[] = {
    {"MenuFile"_key, fileMenu}, {"MenuEdit"_key, editMenu},     {"MenuTank"_key, tankMenu},
    {"MenuView"_key, viewMenu}, {"MenuWindow"_key, windowMenu}, {"MenuHelp"_key, helpMenu},
};

/// The number of menu items that send a command.
consteval std::size_t itemsOf(Command command)
{
    std::size_t items = 0;
    forEachCommandItem(menus, [&](const MenuRow &row) { items += row.command == command ? 1 : 0; });
    return items;
}

consteval bool eachCommandHasOneItem()
{
    for (std::size_t i = 0; i < enumCount<Command>; ++i) {
        if (itemsOf(Command(i)) != 1)
            return false;
    }
    return true;
}
static_assert(eachCommandHasOneItem(), "the menus need one item for each Command");

} // namespace

std::span<const MenuTitle> mainMenus()
{
    return menus;
}

} // namespace brinemark
