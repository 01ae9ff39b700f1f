// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/ListMenu.h"

#include "ui/FinishTyping.h"
#include "ui/Shell.h"
#include "ui/lists/RecordListController.h"

#include <QMenu>

namespace brinemark
{

void newEntryOf(RecordListController &list)
{
    list.newEntry();
}

void deleteSelectionOf(RecordListController &)
{
    Shell::shared().deleteItem();
}

QMenu *makeListMenu(std::span<const ListMenuItem> items, RecordListController &list, QWidget *parent)
{
    auto *menu = new QMenu(parent);
    for (const ListMenuItem &item : items) {
        if (item.title.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        QAction *action = menu->addAction(text(item.title));
        action->setData(item.tag);
        QObject::connect(action, &QAction::triggered, &list, [&list, parent, perform = item.perform] {
            finishTyping(parent->window());
            perform(list);
        });
    }
    QObject::connect(menu, &QMenu::aboutToShow, &list, [menu] {
        for (QAction *action : menu->actions()) {
            if (!action->isSeparator())
                action->setEnabled(Shell::shared().validateMenuItem(action->data().toInt()));
        }
    });
    return menu;
}

} // namespace brinemark
