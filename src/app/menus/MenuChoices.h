// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"

#include <QString>

#include <optional>
#include <vector>

namespace brinemark
{

class MainViewController;

/// One of the things that a command can be about, as an item of its menu.
struct MenuChoice {
    QString title;    ///< with a mnemonic letter, other ampersands doubled
    QString argument; ///< of the command
    QString toolTip = {};
    bool enabled = true;
    std::optional<bool> checked = {}; ///< set where one of the choices holds now
};

/// The choices of a command at this moment: the recent files, of which those that are gone are disabled; or the columns
/// of the list on screen. `list` is the view on screen, null for none. Empty for commands without an argument.
[[nodiscard]] std::vector<MenuChoice> menuChoices(Command command, const MainViewController *list);

} // namespace brinemark
