// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/ScheduleListController.h"

#include "base/text/DateText.h"
#include "model/ModelContext.h"
#include "model/Tank.h"

namespace brinemark
{

namespace
{

/// When the activity would be due the next time.
QString nextDueDate(const Record &record)
{
    const auto &activity = static_cast<const ScheduleData &>(record);
    return localeDateText(activity.date.addSecs(qint64(activity.nextDate)));
}

constexpr std::array<RecordColumn, 5> scheduleColumns{{
    {u"complete", "DoneColumnTooltip"_key, ColumnKind::Flag},
    {u"date", "ColumnDue"_key, ColumnKind::Date},
    {u"activity", "ColumnActivity"_key, ColumnKind::Text, 0, Qt::AlignLeft, 280},
    {u"autoReschedule", "ColumnRepeats"_key, ColumnKind::Flag},
    {u"next", "ColumnNext"_key, ColumnKind::Date, 0, Qt::AlignLeft, 0, &nextDueDate},
}};

constexpr RecordListTraits scheduleTraits{
    ContainerKind::Schedule, "ScheduleItem"_key, "EmptySchedule"_key, &makeNewRecord<ScheduleData>, true,
    scheduleColumns,
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
