// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/ScheduleListController.h"

#include "base/text/DateText.h"
#include "model/ModelContext.h"
#include "model/Tank.h"
#include "ui/MenuTags.h"

#include <array>

namespace brinemark
{

namespace
{

/// The due date that would follow the present one, as text.
QString nextDueDate(const Record &record)
{
    const auto &activity = static_cast<const ScheduleData &>(record);
    return localeDateText(activity.date.addSecs(qint64(activity.nextDate)));
}

constexpr auto scheduleColumns = std::to_array<RecordColumn>({
    {.identifier = u"complete", .header = "DoneColumnTooltip"_key, .kind = ColumnKind::Flag},
    {.identifier = u"date", .header = "ColumnDue"_key, .kind = ColumnKind::Date},
    {.identifier = u"activity", .header = "ColumnActivity"_key, .width = 280},
    {.identifier = u"autoReschedule", .header = "ColumnRepeats"_key, .kind = ColumnKind::Flag},
    {.identifier = u"next", .header = "ColumnNext"_key, .kind = ColumnKind::Date, .shownText = &nextDueDate},
});

constexpr std::array scheduleMenu{newListItem, deleteListItem(menutag::ScheduleSelected)};

constexpr RecordListTraits scheduleTraits{
    .kind = ContainerKind::Schedule,
    .itemKey = "ScheduleItem"_key,
    .emptySentenceKey = "EmptySchedule"_key,
    .makeRecord = &makeNewRecord<ScheduleData>,
    .columns = scheduleColumns,
    .layoutName = "ScheduleList2",
    .menuName = "scheduleCM",
    .menu = scheduleMenu,
};

} // namespace

ScheduleListController::ScheduleListController()
    : RecordListController(scheduleTraits)
{
}

void ScheduleListController::willDeleteRecord(Record &record)
{
    ModelContext::sharedInstance().postScheduleDataDeleted(static_cast<ScheduleData &>(record));
}

void ScheduleListController::doneChecked(ScheduleData &)
{
    updateDisplay();
}

} // namespace brinemark

#include "moc_ScheduleListController.cpp"
