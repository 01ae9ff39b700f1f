// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"
#include "base/text/Texts.h"

#include <QKeySequence>

#include <span>

namespace brinemark
{

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
