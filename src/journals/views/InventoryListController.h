// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

/// What the keeper of the current tank owns.
class InventoryListController : public RecordListController, public Shared<InventoryListController>
{
    Q_OBJECT

private:
    friend class Shared<InventoryListController>;
    InventoryListController();
};

} // namespace brinemark
