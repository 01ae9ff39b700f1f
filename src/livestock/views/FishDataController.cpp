// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/FishDataController.h"

#include "livestock/views/FishDataEntryController.h"
#include "livestock/views/ProfileView.h"
#include "model/ItemData.h"

#include <QPushButton>

namespace brinemark
{

FishDataController::FishDataController() = default;

FishDataController::~FishDataController() = default;

QWidget *FishDataController::view()
{
    if (!m_view) {
        m_view = new ProfileView;
        connect(m_view->editButton(), &QPushButton::clicked, this, &FishDataController::editInfo);
        updateDisplay();
    }
    return m_view;
}

void FishDataController::setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton)
{
    view();
    QWidget::setTabOrder(tankTree, m_view->scrollArea());
    QWidget::setTabOrder(m_view->scrollArea(), m_view->editButton());
    QWidget::setTabOrder(m_view->editButton(), helpButton);
    updateDisplay();
}

void FishDataController::displayItemData(ItemData *item)
{
    m_currentItem = item ? std::static_pointer_cast<ItemData>(item->shared_from_this()) : nullptr;
    updateDisplay();
}

void FishDataController::updateDisplay()
{
    if (m_view)
        m_view->showItem(currentItem());
}

void FishDataController::editInfo()
{
    if (ItemData *item = currentItem())
        FishDataEntryController::sharedInstance().displayItemData(item, item->itemContext());
}

} // namespace brinemark

#include "moc_FishDataController.cpp"
