// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/MainView.h"

#include <QObject>

#include <array>

class QStackedWidget;
class QWidget;

namespace brinemark
{

class MainViewController;

/// The right side of the main window: nine views, of which one is on screen. A view's controller is made the first time
/// that the view is shown.
class MainViews : public QObject
{
    Q_OBJECT

public:
    /// `container` shows the views; the tab order runs from the tree through the view to the help button and back.
    MainViews(QStackedWidget &container, QWidget *tankTree, QWidget *helpButton);

    /// Prepares the view and puts it on screen. A number that is no view leaves what is there on screen, but is
    /// remembered.
    void changeView(MainView view);
    [[nodiscard]] MainView currentViewConstant() const { return m_currentViewConstant; }
    [[nodiscard]] QWidget *currentView() const;

    /// The controller of a view; null for the empty view, and for one that was not shown yet.
    [[nodiscard]] MainViewController *controller(MainView view) const;
    [[nodiscard]] bool hasSelectedRow(MainView view) const;

    /// Stores the column layout of the list on screen.
    void updateColumnInfo();

Q_SIGNALS:
    void selectionChanged(); ///< in the view on screen

private:
    MainViewController &prepared(MainView view);

    QStackedWidget &m_container;
    QWidget *m_tankTree;
    QWidget *m_helpButton;
    QWidget *m_emptyView;
    std::array<MainViewController *, mainViewCount> m_controllers{};
    MainView m_currentViewConstant = MainView::None;
};

} // namespace brinemark
