// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/ExpenseListController.h"

#include "model/Tank.h"
#include "ui/MenuTags.h"

#include <array>

namespace brinemark
{

namespace
{

/// The expense's category, or the text for "none" when its tank does not have that category.
QString shownCategory(const Record &record)
{
    const auto &expense = static_cast<const ExpenseData &>(record);
    const Tank *tank = expense.tank;
    return tank && tank->expenseCategoryArray.contains(expense.type) ? expense.type : text("ExpenseNoneItem");
}

constexpr auto expenseColumns = std::to_array<RecordColumn>({
    {.identifier = u"date", .header = "Date"_key, .kind = ColumnKind::Date},
    {.identifier = u"expense", .header = "ColumnExpense"_key, .width = 280},
    {.identifier = u"amount",
     .header = "ColumnAmount"_key,
     .kind = ColumnKind::Amount,
     .decimals = 2,
     .alignment = Qt::AlignRight,
     .width = 110},
    {.identifier = u"type", .header = "ColumnCategory"_key, .shownText = &shownCategory},
});

constexpr std::array expenseMenu{newListItem, deleteListItem(menutag::ExpenseSelected)};

constexpr RecordListTraits expenseTraits{
    .kind = ContainerKind::Expense,
    .itemKey = "ExpenseItem"_key,
    .emptySentenceKey = "EmptyExpense"_key,
    .makeRecord = &makeNewRecord<ExpenseData>,
    .columns = expenseColumns,
    .layoutName = "ExpenseList",
    .menuName = "expenseCM",
    .menu = expenseMenu,
};

} // namespace

ExpenseListController::ExpenseListController()
    : RecordListController(expenseTraits)
{
}

} // namespace brinemark

#include "moc_ExpenseListController.cpp"
