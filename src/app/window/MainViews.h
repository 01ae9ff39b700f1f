// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/MainView.h"

#include <QObject>

#include <array>

class QStackedWidget;

namespace brinemark
{

class EmptyState;
class MainViewController;

/// The right side of the main window, which shows one of nine views. A view's controller is created when the view is
/// first shown.
class MainViews : public QObject
{
    Q_OBJECT

public:
    /// `container` shows the views. `tankTree` and `helpButton` begin and end the tab order of each view.
    MainViews(QStackedWidget &container, QWidget *tankTree, QWidget *helpButton);

    /// Prepares the view and shows it. An unknown number leaves the present view on screen, but becomes the current
    /// view constant.
    void changeView(MainView view);
    [[nodiscard]] MainView currentViewConstant() const { return m_currentViewConstant; }
    [[nodiscard]] QWidget *currentView() const;

    /// The controller of a view; null for the empty view and for a view that has not been shown yet.
    [[nodiscard]] MainViewController *controller(MainView view) const;
    [[nodiscard]] bool hasSelectedRow(MainView view) const;

    [[nodiscard]] QString helpAnchor() const; ///< of the view on screen in the help

    /// Stores the column layout of the list on screen.
    void updateColumnInfo();

Q_SIGNALS:
    void selectionChanged(); ///< emitted for the view on screen
    void addTankRequested(); ///< by the button of the empty view

private:
    MainViewController &prepared(MainView view);

    QStackedWidget &m_container;
    QWidget *m_tankTree;
    QWidget *m_helpButton;
    EmptyState *m_emptyView;
    std::array<MainViewController *, mainViewCount> m_controllers{};
    MainView m_currentViewConstant = MainView::None;
};

} // namespace brinemark
