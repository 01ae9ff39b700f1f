// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/MainMenuBar.h"

#include "ui/Icons.h"

#include <QApplication>

namespace brinemark
{

namespace
{

QAction::MenuRole roleOf(Command command)
{
    switch (command) {
    case Command::Preferences:
        return QAction::PreferencesRole;
    case Command::Quit:
        return QAction::QuitRole;
    case Command::About:
        return QAction::AboutRole;
    default:
        return QAction::NoRole;
    }
}

QList<QKeySequence> shortcutsOf(const MenuRow &row)
{
    if (row.shortcut)
        return {QKeySequence(QLatin1String(row.shortcut))};
    if (row.standardKey == QKeySequence::UnknownKey)
        return {};
    QList<QKeySequence> keys = QKeySequence::keyBindings(row.standardKey);
    // Some desktops define no keys for these two commands; use the usual ones there.
    if (keys.isEmpty() && row.standardKey == QKeySequence::SaveAs)
        keys = {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)};
    if (keys.isEmpty() && row.standardKey == QKeySequence::Quit)
        keys = {QKeySequence(Qt::CTRL | Qt::Key_Q)};
    return keys;
}

} // namespace

MainMenuBar::MainMenuBar(QWidget *parent)
    : QMenuBar(parent)
{
    setObjectName(QStringLiteral("mainMenuBar"));
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *old, QWidget *now) {
        if (now == this)
            m_focusBefore = old;
        else if (now)
            m_focusBefore.clear();
    });
    for (const MenuTitle &title : mainMenus()) {
        QMenu *menu = addMenu(text(title.title));
        menu->setObjectName(QLatin1String(title.title.key));
        connect(menu, &QMenu::aboutToShow, this, &MainMenuBar::menuWillOpen);
        for (const MenuRow &row : title.rows) {
            if (row.title.isEmpty()) {
                menu->addSeparator();
                continue;
            }
            QAction *action = menu->addAction(text(row.title));
            action->setObjectName(QLatin1String(row.title.key));
            action->setShortcuts(shortcutsOf(row));
            action->setMenuRole(roleOf(row.command));
            if (row.icon)
                action->setIcon(icon(row.icon));
            connect(action, &QAction::triggered, this,
                    [this, command = row.command] { Q_EMIT commandChosen(command); });
            m_actions.emplace(row.command, action);
            m_items.push_back({action, row.tag});
        }
    }
}

void MainMenuBar::validate()
{
    if (!m_state)
        return;
    const MenuState state = m_state();
    for (const Item &item : m_items) {
        const MenuItemState now = menuItemState(item.tag, state);
        item.action->setEnabled(now.enabled);
        if (now.title)
            item.action->setText(text(*now.title));
    }
}

QWidget *MainMenuBar::commandTarget() const
{
    return m_focusBefore ? m_focusBefore.data() : QApplication::focusWidget();
}

} // namespace brinemark

#include "moc_MainMenuBar.cpp"
