// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/MainViews.h"

#include "base/text/Texts.h"
#include "chemistry/views/ConditionListController.h"
#include "chemistry/views/TankDataController.h"
#include "journals/views/ExpenseListController.h"
#include "journals/views/InventoryListController.h"
#include "journals/views/NoteListController.h"
#include "journals/views/ScheduleListController.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/LivestockGroupController.h"
#include "ui/EmptyState.h"
#include "ui/Icons.h"

#include <QPushButton>
#include <QStackedWidget>

namespace brinemark
{

namespace
{

template <class Controller>
MainViewController &shared()
{
    return Controller::sharedInstance();
}

/// How the controller of a view is made, or found when it exists.
struct ViewRow {
    MainView view;
    MainViewController &(*controller)(); ///< null for the empty view, which has no controller
    const char *helpAnchor = "";
};

constexpr std::array<ViewRow, mainViewCount> viewRows{{
    {MainView::None, nullptr},
    {MainView::Tank, &shared<TankDataController>, "tanks"},
    {MainView::LivestockGroup, &shared<LivestockGroupController>, "livestock"},
    {MainView::LivestockItem, &shared<FishDataController>, "livestock-profile"},
    {MainView::Schedule, &shared<ScheduleListController>, "schedule"},
    {MainView::Notes, &shared<NoteListController>, "notes"},
    {MainView::Conditions, &shared<ConditionListController>, "conditions"},
    {MainView::Inventory, &shared<InventoryListController>, "inventory"},
    {MainView::Expenses, &shared<ExpenseListController>, "expenses"},
}};
static_assert(rowsFollow<MainView>(viewRows, &ViewRow::view), "viewRows needs one row for each MainView, in its order");

bool isView(MainView view)
{
    return qint32(view) >= 0 && qint32(view) < mainViewCount;
}

} // namespace

MainViews::MainViews(QStackedWidget &container, QWidget *tankTree, QWidget *helpButton)
    : m_container(container)
    , m_tankTree(tankTree)
    , m_helpButton(helpButton)
    , m_emptyView(new EmptyState(icon("NewTankBig"), text("EmptyTanks"), text("ToolbarNewTank")))
{
    m_emptyView->setObjectName(QStringLiteral("emptyView"));
    connect(m_emptyView, &EmptyState::addRequested, this, &MainViews::addTankRequested);
    m_container.addWidget(m_emptyView);
}

MainViewController &MainViews::prepared(MainView view)
{
    MainViewController *&controller = m_controllers[std::size_t(view)];
    if (!controller) {
        controller = &viewRows[std::size_t(view)].controller();
        m_container.addWidget(controller->view());
        connect(controller, &MainViewController::selectionChanged, this, &MainViews::selectionChanged);
    }
    return *controller;
}

void MainViews::changeView(MainView view)
{
    updateColumnInfo();
    if (view == MainView::None) {
        QWidget::setTabOrder(m_tankTree, m_emptyView->button());
        QWidget::setTabOrder(m_emptyView->button(), m_helpButton);
        m_container.setCurrentWidget(m_emptyView);
    } else if (isView(view)) {
        MainViewController &controller = prepared(view);
        controller.setKeyViewWithTankList(m_tankTree, m_helpButton);
        m_container.setCurrentWidget(controller.view());
    }
    m_currentViewConstant = view;
}

QWidget *MainViews::currentView() const
{
    return m_container.currentWidget();
}

MainViewController *MainViews::controller(MainView view) const
{
    return isView(view) ? m_controllers[std::size_t(view)] : nullptr;
}

bool MainViews::hasSelectedRow(MainView view) const
{
    const MainViewController *controller = this->controller(view);
    return controller && controller->hasSelectedRow();
}

QString MainViews::helpAnchor() const
{
    const MainView view = m_currentViewConstant;
    return isView(view) ? QString::fromLatin1(viewRows[std::size_t(view)].helpAnchor) : QString();
}

void MainViews::updateColumnInfo()
{
    if (MainViewController *controller = this->controller(m_currentViewConstant))
        controller->updateColumnInfo();
}

} // namespace brinemark

#include "moc_MainViews.cpp"
