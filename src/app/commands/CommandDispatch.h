// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"

#include <QStringView>

#include <span>

namespace brinemark
{

class ShoalwatchController;

/// A command and what it does.
struct CommandRow {
    Command command;
    void (*perform)(ShoalwatchController &main);
};

/// The one entrance through which every command passes, whether a menu, a shortcut, the toolbar, the tree's context
/// menu or a button sends it.
class CommandDispatch
{
public:
    explicit CommandDispatch(ShoalwatchController &main);

    void perform(Command command);
    void performToolbarItem(QStringView identifier); ///< items that send no command do nothing

    /// One row for each command, in the order of `Command`.
    [[nodiscard]] static std::span<const CommandRow> table();

private:
    ShoalwatchController &m_main;
};

} // namespace brinemark
