// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/MainViewController.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <memory>

namespace brinemark
{

class ProfileView;
struct ItemData;

/// The profile of the livestock record that is selected in the tank tree. The view's object name is "fishDataView".
class FishDataController : public MainViewController, public Shared<FishDataController>
{
    Q_OBJECT

public:
    ~FishDataController() override;

    void displayItemData(ItemData *item); ///< null shows no record
    [[nodiscard]] ItemData *currentItem() const { return m_currentItem.lock().get(); }

    QWidget *view() override;
    void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) override;
    void updateDisplay() override;

    void editInfo(); ///< opens the item editor for the shown record

private:
    friend class Shared<FishDataController>;
    FishDataController();

    std::weak_ptr<ItemData> m_currentItem;
    OwnedWidget<ProfileView> m_view;
};

} // namespace brinemark
