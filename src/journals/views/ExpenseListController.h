// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

/// What was spent on the current tank.
class ExpenseListController : public RecordListController, public Shared<ExpenseListController>
{
    Q_OBJECT

private:
    friend class Shared<ExpenseListController>;
    ExpenseListController();
};

} // namespace brinemark
