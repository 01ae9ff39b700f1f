// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/MainMenuBar.h"

#include "ui/Icons.h"

#include <QActionGroup>
#include <QApplication>
#include <QMenu>

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
        addItems(*menu, title.rows);
    }
}

void MainMenuBar::addItems(QMenu &menu, std::span<const MenuRow> rows)
{
    connect(&menu, &QMenu::aboutToShow, this, &MainMenuBar::menuWillOpen);
    auto *group = new QActionGroup(&menu); // between two separators one item at most has a check mark
    for (const MenuRow &row : rows) {
        if (row.title.isEmpty()) {
            menu.addSeparator();
            group = new QActionGroup(&menu);
            continue;
        }
        QAction *action = row.submenu ? menu.addMenu(text(row.title))->menuAction() : menu.addAction(text(row.title));
        action->setObjectName(QLatin1String(row.title.key));
        if (row.icon)
            action->setIcon(icon(row.icon));
        if (!row.hasChoices)
            m_items.push_back({action, row.tag});
        if (row.submenu) {
            addItems(*action->menu(), row.submenu->rows);
            continue;
        }
        m_actions.emplace(row.command, action);
        if (row.hasChoices) {
            action->setEnabled(false);
            menu.setToolTipsVisible(true);
            connect(&menu, &QMenu::aboutToShow, group,
                    [this, &menu, command = row.command, group] { showChoices(menu, command, *group); });
            group = new QActionGroup(&menu);
            continue;
        }
        action->setShortcuts(shortcutsOf(row));
        action->setMenuRole(roleOf(row.command));
        group->addAction(action); // an item without a check mark is not affected
        connect(action, &QAction::triggered, this,
                [this, command = row.command] { Q_EMIT commandChosen(command, {}); });
    }
}

void MainMenuBar::showChoices(QMenu &menu, Command command, QActionGroup &group)
{
    constexpr int widestTitle = 480; // pixels
    qDeleteAll(group.actions());
    QAction *none = action(command);
    const std::vector<MenuChoice> choices = m_choices ? m_choices(command) : std::vector<MenuChoice>();
    for (const MenuChoice &choice : choices) {
        auto *item = new QAction(
            menu.fontMetrics().elidedText(choice.title, Qt::ElideMiddle, widestTitle, Qt::TextShowMnemonic), &group);
        item->setEnabled(choice.enabled);
        item->setToolTip(choice.toolTip);
        item->setCheckable(choice.checked.has_value());
        item->setChecked(choice.checked.value_or(false));
        menu.insertAction(none, item);
        connect(item, &QAction::triggered, this,
                [this, command, argument = choice.argument] { Q_EMIT commandChosen(command, argument); });
    }
    none->setVisible(choices.empty());
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
        if (now.checked) {
            item.action->setCheckable(true);
            item.action->setChecked(*now.checked);
        }
    }
}

QWidget *MainMenuBar::commandTarget() const
{
    return m_focusBefore ? m_focusBefore.data() : QApplication::focusWidget();
}

} // namespace brinemark

#include "moc_MainMenuBar.cpp"
