// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/ExpenseListController.h"

#include "model/Tank.h"

namespace brinemark
{

namespace
{

/// The category, if the tank still has it.
QString shownCategory(const Record &record)
{
    const auto &expense = static_cast<const ExpenseData &>(record);
    const Tank *tank = expense.tank;
    return tank && tank->expenseCategoryArray.contains(expense.type) ? expense.type : text("ExpenseNoneItem");
}

constexpr std::array<RecordColumn, 4> expenseColumns{{
    {u"date", "Date"_key, ColumnKind::Date},
    {u"expense", "ColumnExpense"_key, ColumnKind::Text, 0, Qt::AlignLeft, 280},
    {u"amount", "ColumnAmount"_key, ColumnKind::Amount, 2, Qt::AlignRight, 110},
    {u"type", "ColumnCategory"_key, ColumnKind::Text, 0, Qt::AlignLeft, 0, &shownCategory},
}};

constexpr RecordListTraits expenseTraits{
    ContainerKind::Expense, "ExpenseItem"_key, "EmptyExpense"_key, &makeNewRecord<ExpenseData>, true, expenseColumns,
};

} // namespace

ExpenseListController::ExpenseListController()
    : RecordListController(expenseTraits)
{
}

} // namespace brinemark

#include "moc_ExpenseListController.cpp"
