// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/menus/MenuRules.h"
#include "app/menus/MenuTable.h"

#include <QMenuBar>
#include <QPointer>

#include <functional>
#include <map>

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

    [[nodiscard]] QAction *action(Command command) const { return m_actions.at(command); }

    void validate();

    /// The widget that the commands act on: the one with the focus or, while the menu bar has it, the one that had it
    /// before.
    [[nodiscard]] QWidget *commandTarget() const;

Q_SIGNALS:
    void menuWillOpen(); ///< the owner enables and disables the items now
    void commandChosen(brinemark::Command command);

private:
    struct Item {
        QAction *action;
        int tag;
    };
    std::map<Command, QAction *> m_actions;
    std::vector<Item> m_items;
    std::function<MenuState()> m_state;
    /// The widget that had the focus before the menu bar; null while the menu bar does not have it.
    QPointer<QWidget> m_focusBefore;
};

} // namespace brinemark
