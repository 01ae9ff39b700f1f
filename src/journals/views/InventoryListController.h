// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

/// The list of the current tank's equipment and supplies.
class InventoryListController : public RecordListController, public Shared<InventoryListController>
{
    Q_OBJECT

private:
    friend class Shared<InventoryListController>;
    InventoryListController();
};

} // namespace brinemark
