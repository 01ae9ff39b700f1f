// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/menus/MenuTable.h"

namespace brinemark
{

class MainMenuBar;
class TankListController;

/// Cut, copy, paste and select all act on the menus' target: a text being edited, or the tank tree.
void performEditCommand(Command command, const MainMenuBar &menus, TankListController &tree);

/// Enables these commands, and delete, for the focus as it is now.
void validateEditCommands(MainMenuBar &menus, const TankListController &tree, bool canDelete);

} // namespace brinemark
