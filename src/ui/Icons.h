// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QString>
#include <array>

namespace brinemark
{

/// The names of all icons; each is drawn in :/icons/NAME.svg.
inline constexpr std::array iconNames{
    // Tree rows, drawn for 16 px.
    "TankSmall", "FishSmall", "PlantSmall", "CoralSmall", "InvertebratesSmall", "ConditionsSmall", "NotesSmall",
    "ScheduleSmall", "InventorySmall", "ExpensesSmall",
    // Toolbar, drawn for 24 to 32 px.
    "NewTankBig", "NewFishBig", "PlantNew", "InvertebratesNew", "CoralNew", "Delete", "Convert", "NoteWindow", "Print",
    "Customise", "ToolbarSeparator", "ToolbarSpace", "ToolbarFlexibleSpace",
    // Pictures, drawn for 96 to 160 px.
    "FishBig", "Plant", "Invertebrates", "Coral", "Profileplaceholder3",
    // Lists and their buttons.
    "Ellipse", "New", "Remove", "Action", "Edit", "Help", "Graph", "WholeGraph", "Swap", "Export", "Search",
    // The calendar's buttons; the calendar swaps previous and next in right-to-left layouts.
    "PreviousYear", "PreviousMonth", "NextMonth", "NextYear",
    // States and alerts; each differs from the others in shape as well as in colour.
    "StateInRange", "StateNear", "StateOut", "StateNotTested", "StateOverdue", "StateDone", "AlertCritical",
    "AlertQuestion", "AlertInformation",
    // Commands.
    "Undo", "Redo", "Copy", "Paste", "Open", "Save", "NewFile", "Settings", "Mail", "Web", "Update", "Back", "Forward",
    "Home",
    // The program itself.
    "Brinemark"};

/// The icon drawn in :/icons/NAME.svg, in the colours of the application's palette; it follows palette changes. An
/// unknown name gives a null icon and a line in the log.
QIcon icon(const QString &name);
QIcon icon(const char *name);

} // namespace brinemark
