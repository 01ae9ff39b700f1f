// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Amount.h"
#include "model/Record.h"

#include <QDateTime>
#include <QString>

namespace brinemark
{

class StyledText;

/// One expense.
struct ExpenseData final : Record {
    QDateTime date;
    QString expense; ///< what was bought
    Amount amount;
    QString type; ///< one of the tank's categories, or the text of "ExpenseNoneItem"

    explicit ExpenseData(Tank *parent = nullptr);
    explicit ExpenseData(Blank) {}

    [[nodiscard]] StyledText expenseDataAttributedString() const; ///< captions and values, for reading and printing

    [[nodiscard]] RecordType recordType() const override { return RecordType::Expense; }
    [[nodiscard]] std::shared_ptr<Record> copy() const override;
};

} // namespace brinemark
