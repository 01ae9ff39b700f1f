// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/menus/MenuTable.h"

#include <QMenuBar>
#include <QPointer>

#include <functional>
#include <map>

namespace brinemark
{

/// The menu bar, built from the menu table. Its owner validates the items when a menu opens and whenever the state has
/// changed, so that shortcuts obey the same rules.
class MainMenuBar : public QMenuBar
{
    Q_OBJECT

public:
    explicit MainMenuBar(QWidget *parent = nullptr);

    /// Where the rules find the state of the window.
    void setStateProvider(std::function<MenuState()> provider) { m_state = std::move(provider); }

    [[nodiscard]] QAction *action(Command command) const { return m_actions.at(command); }

    void validate();

    /// The control that the commands mean: the one with the focus, or the one that had it until the keyboard moved it
    /// into the menu bar.
    [[nodiscard]] QWidget *commandTarget() const;

Q_SIGNALS:
    void menuWillOpen(); ///< its owner validates now, by these rules and by what it knows beyond them
    void commandChosen(brinemark::Command command);

private:
    struct Item {
        QAction *action;
        int tag;
    };
    std::map<Command, QAction *> m_actions;
    std::vector<Item> m_items;
    std::function<MenuState()> m_state;
    QPointer<QWidget> m_focusBefore; ///< set while the menu bar itself has the focus
};

} // namespace brinemark
