// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/MainSelection.h"

#include "app/menus/MenuRules.h"
#include "app/tree/TankListController.h"
#include "app/window/MainViews.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/LivestockGroupController.h"
#include "ui/MainViewController.h"

namespace brinemark
{

MainSelection::MainSelection(TankListController &tree, MainViews &views)
    : m_tree(tree)
    , m_views(views)
{
}

void MainSelection::changeView(MainView view)
{
    const TreeItem item = m_tree.currentSelectedItem();
    if (view == MainView::LivestockGroup)
        LivestockGroupController::sharedInstance().setContainer(item.container);
    m_views.changeView(view);
    if (view == MainView::LivestockItem)
        FishDataController::sharedInstance().displayItemData(item.record);
}

MainView MainSelection::currentView() const
{
    return m_views.currentViewConstant();
}

bool MainSelection::canDelete() const
{
    return brinemark::canDelete(currentView(), m_views.hasSelectedRow(currentView()));
}

void MainSelection::deleteItem()
{
    if (!canDelete())
        return;
    switch (currentView()) {
    case MainView::None:
    case MainView::Tank:
        m_tree.deleteTankEntry();
        break;
    case MainView::LivestockItem:
        m_tree.deleteItemDataEntry();
        break;
    default:
        if (MainViewController *controller = view())
            controller->deleteSelected();
        break;
    }
}

void MainSelection::newEntry()
{
    if (MainViewController *controller = view())
        controller->newEntry();
}

MainViewController *MainSelection::view() const
{
    return m_views.controller(currentView());
}

void MainSelection::sortBy(const QString &identifier)
{
    const std::optional<SortOrder> order = view() ? view()->sortOrder() : std::nullopt;
    if (order && !identifier.isEmpty())
        view()->sort({identifier, order->ascending});
}

void MainSelection::sortAscending(bool ascending)
{
    const std::optional<SortOrder> order = view() ? view()->sortOrder() : std::nullopt;
    if (order)
        view()->sort({order->identifier, ascending});
}

void MainSelection::appendTank(const std::shared_ptr<Tank> &tank)
{
    m_tree.list().append(tank);
    m_tree.updateDisplay();
    selectInTree(*tank);
}

void MainSelection::selectInTree(Tank &tank)
{
    m_tree.select(TreeItem(tank));
}

void MainSelection::selectInTree(Container &container)
{
    m_tree.select(TreeItem(container));
}

void MainSelection::selectInTree(Record &livestock)
{
    if (livestock.recordType() == RecordType::Item)
        m_tree.select(TreeItem(static_cast<ItemData &>(livestock)));
}

} // namespace brinemark
