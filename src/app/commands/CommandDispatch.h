// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"

#include <QString>

#include <span>

namespace brinemark
{

class ShoalwatchController;

/// A command and what it does.
struct CommandRow {
    Command command;
    void (*perform)(ShoalwatchController &main, const QString &argument);
    bool actsOnTyping = false; ///< cuts, copies, pastes or selects in the text that is being typed
};

/// The one entrance through which every command passes, whether a menu, a shortcut, the toolbar, the tree's context
/// menu or a button sends it.
class CommandDispatch
{
public:
    explicit CommandDispatch(ShoalwatchController &main);

    /// First stores what is being typed into a row or a cell, unless the command acts on that text.
    void perform(Command command, const QString &argument = {});
    void performToolbarItem(QStringView identifier); ///< items that send no command do nothing

    /// One row for each command, in the order of `Command`.
    [[nodiscard]] static std::span<const CommandRow> table();

private:
    ShoalwatchController &m_main;
};

} // namespace brinemark
