// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"

namespace brinemark
{

class MainMenuBar;
class TankListController;

/// Carries out cut, copy, paste or select all on the menus' target: the text being edited, or the tank tree.
void performEditCommand(Command command, const MainMenuBar &menus, TankListController &tree);

/// Enables these commands for the widget that has the focus now.
void validateEditCommands(MainMenuBar &menus, const TankListController &tree);

} // namespace brinemark
