#pragma once

#include "app/menus/MenuTable.h"

#include <QMenuBar>

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
};

} // namespace brinemark
