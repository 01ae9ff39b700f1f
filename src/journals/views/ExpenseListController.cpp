#include "journals/views/ExpenseListController.h"

namespace brinemark
{

ExpenseListController::ExpenseListController()
    : RecordListController({ContainerKind::Expense, "ExpenseItem"_key, "EmptyExpense"_key, "ExpenseSmall", nullptr})
{
}
std::span<const RecordColumn> ExpenseListController::columnsFor(Tank *)
{
    return {};
}

} // namespace brinemark
