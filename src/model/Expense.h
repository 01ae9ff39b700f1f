// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ExpenseData.h"
#include "model/RecordContainer.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's expense list.
class Expense final : public RecordContainer<ExpenseData>
{
public:
    explicit Expense(Tank *parent)
        : RecordContainer(ContainerKind::Expense, parent)
    {
    }

    [[nodiscard]] Records &expenseArray() { return records(); }
    [[nodiscard]] const Records &expenseArray() const { return records(); }

    /// The texts of the first five records, each followed by a comma and a blank.
    [[nodiscard]] QString metaExpenseString() const { return journalMetaString(*this, u"expense"); }
};

} // namespace brinemark
