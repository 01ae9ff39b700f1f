// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemContext.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>

#include <memory>

namespace brinemark
{

class ItemSheet;
struct ItemData;

/// Adds new livestock records and edits existing ones.
class FishDataEntryController : public QObject, public Shared<FishDataEntryController>
{
    Q_OBJECT

public:
    ~FishDataEntryController() override;

    /// With a record, opens the item sheet for it. Without one, adds a new record of the kind to the current tank,
    /// selects it in the tree and starts editing its name there; does nothing when there is no current tank.
    void displayItemData(ItemData *item, ItemContext context);

private:
    friend class Shared<FishDataEntryController>;
    FishDataEntryController();

    void addNewItem(ItemContext context);
    void closeEditSheet(int returnCode);

    std::shared_ptr<ItemData> m_itemData; ///< the record that the sheet edits
    OwnedWidget<ItemSheet> m_infoPanel;
};

} // namespace brinemark
