// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

/// The list of the current tank's expenses.
class ExpenseListController : public RecordListController, public Shared<ExpenseListController>
{
    Q_OBJECT

private:
    friend class Shared<ExpenseListController>;
    ExpenseListController();
};

} // namespace brinemark
