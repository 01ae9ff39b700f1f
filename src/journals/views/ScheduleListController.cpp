#include "journals/views/ScheduleListController.h"

namespace brinemark
{

ScheduleListController::ScheduleListController()
    : RecordListController({ContainerKind::Schedule, "ScheduleItem"_key, "EmptySchedule"_key, "ScheduleSmall", nullptr})
{
}
std::span<const RecordColumn> ScheduleListController::columnsFor(Tank *)
{
    return {};
}

} // namespace brinemark
