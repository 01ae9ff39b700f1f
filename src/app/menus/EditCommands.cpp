// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/EditCommands.h"

#include "app/menus/MainMenuBar.h"
#include "app/tree/TankListController.h"
#include "base/TableChecks.h"

#include <QWidget>

namespace brinemark
{

namespace
{

struct EditRow {
    Command command;
    const char *slot; ///< the slot's name in the toolkit's text widgets
};

constexpr EditRow editRows[] = {
    {Command::Cut, "cut"},
    {Command::Copy, "copy"},
    {Command::Paste, "paste"},
    {Command::SelectAll, "selectAll"},
};
static_assert(noneHasTwoRows<Command>(editRows, &EditRow::command), "editRows has two rows for a Command");

bool hasSlot(const QWidget *widget, const char *slot)
{
    return widget && widget->metaObject()->indexOfMethod(QByteArray(slot) + "()") >= 0;
}

bool treeCan(Command command, const TankListController &tree)
{
    return (command == Command::Copy && tree.canCopy()) || (command == Command::Paste && tree.canPaste());
}

} // namespace

void performEditCommand(Command command, const MainMenuBar &menus, TankListController &tree)
{
    QWidget *target = menus.commandTarget();
    if (target == tree.tankList()) {
        if (command == Command::Copy)
            tree.copy();
        else if (command == Command::Paste)
            tree.paste();
        return;
    }
    for (const EditRow &row : editRows) {
        if (row.command == command && hasSlot(target, row.slot))
            QMetaObject::invokeMethod(target, row.slot);
    }
}

void validateEditCommands(MainMenuBar &menus, const TankListController &tree)
{
    const QWidget *target = menus.commandTarget();
    for (const EditRow &row : editRows) {
        const bool enabled = target == tree.tankList() ? treeCan(row.command, tree) : hasSlot(target, row.slot);
        menus.action(row.command)->setEnabled(enabled);
    }
}

} // namespace brinemark
