// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/menus/MenuChoices.h"
#include "app/menus/MenuRules.h"
#include "app/menus/MenuTable.h"

#include <QMenuBar>
#include <QPointer>

#include <functional>
#include <map>

class QActionGroup;

namespace brinemark
{

/// The menu bar, built from the menu table. Its owner calls validate() when a menu opens and whenever the state
/// changes, so that shortcuts follow the same rules as the items.
class MainMenuBar : public QMenuBar
{
    Q_OBJECT

public:
    explicit MainMenuBar(QWidget *parent = nullptr);

    /// Sets the function that supplies the window's state to the rules.
    void setStateProvider(std::function<MenuState()> provider) { m_state = std::move(provider); }
    /// Sets the function that supplies the choices of a command, asked each time their menu opens.
    void setChoiceProvider(std::function<std::vector<MenuChoice>(Command)> provider)
    {
        m_choices = std::move(provider);
    }

    /// The item of a command; of a command with choices, the one that is shown when there is none.
    [[nodiscard]] QAction *action(Command command) const { return m_actions.at(command); }

    void validate();

    /// The widget that the commands act on: the one with the focus or, while the menu bar has it, the one that had it
    /// before.
    [[nodiscard]] QWidget *commandTarget() const;

Q_SIGNALS:
    void menuWillOpen(); ///< the owner enables and disables the items now
    void commandChosen(brinemark::Command command, const QString &argument);

private:
    void addItems(QMenu &menu, std::span<const MenuRow> rows);
    void showChoices(QMenu &menu, Command command, QActionGroup &group);

    struct Item {
        QAction *action;
        int tag;
    };
    std::map<Command, QAction *> m_actions;
    std::vector<Item> m_items;
    std::function<MenuState()> m_state;
    std::function<std::vector<MenuChoice>(Command)> m_choices;
    /// The widget that had the focus before the menu bar; null while the menu bar does not have it.
    QPointer<QWidget> m_focusBefore;
};

} // namespace brinemark
