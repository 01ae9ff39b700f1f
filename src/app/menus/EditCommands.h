#pragma once

#include "app/menus/MenuTable.h"

namespace brinemark
{

class MainMenuBar;
class TankListController;

/// Cut, copy, paste and select all act on whatever has the focus: a text being edited, or the tank tree.
void performEditCommand(Command command, TankListController &tree);

/// Enables these commands, and delete, for the focus as it is now.
void validateEditCommands(MainMenuBar &menus, const TankListController &tree, bool canDelete);

} // namespace brinemark
