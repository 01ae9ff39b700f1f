#include "chemistry/views/ConditionListController.h"
#include <QDialog>

namespace brinemark
{

ConditionListController::ConditionListController()
    : RecordListController(
          {ContainerKind::Condition, "ConditionItem"_key, "EmptyCondition"_key, "ConditionsSmall", nullptr})
{
}
std::span<const RecordColumn> ConditionListController::columnsFor(Tank *)
{
    return {};
}
void ConditionListController::updateColumnInfo() {}
void ConditionListController::showCustomizeConditionColumns() {}
void ConditionListController::toogleConditionColumn(int) {}
bool ConditionListController::isColumnVisible(int) const
{
    return false;
}
void ConditionListController::viewMade() {}
void ConditionListController::tankShown(Tank *) {}

} // namespace brinemark
