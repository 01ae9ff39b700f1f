// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/MainView.h"

#include <QString>

#include <memory>

namespace brinemark
{

class Container;
class MainViewController;
class MainViews;
class Tank;
class TankListController;
struct Record;

/// The selection of the main window: the row of the tank tree, the view that shows it, and what the delete and
/// new-entry commands act on in that view.
class MainSelection
{
public:
    MainSelection(TankListController &tree, MainViews &views);

    /// Puts the view on screen; a livestock view gets the group or record of the tree's selected row.
    void changeView(MainView view);
    [[nodiscard]] MainView currentView() const;

    [[nodiscard]] bool canDelete() const;
    void deleteItem(); ///< asks, then deletes what is selected in the view, or else in the tree
    void newEntry();   ///< appends a record to the list on screen

    [[nodiscard]] MainViewController *view() const; ///< the view on screen; null for the empty one
    /// Sort the list on screen by another column, or in another direction. Without a list they do nothing.
    void sortBy(const QString &identifier);
    void sortAscending(bool ascending);

    void appendTank(const std::shared_ptr<Tank> &tank); ///< adds it to the list and selects its row
    // Each opens the rows above the selected one.
    void selectInTree(Tank &tank);
    void selectInTree(Container &container);
    void selectInTree(Record &livestock); ///< records of the journals have no row: nothing happens

private:
    TankListController &m_tree;
    MainViews &m_views;
};

} // namespace brinemark
