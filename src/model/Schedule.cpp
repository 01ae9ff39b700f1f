// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Schedule.h"

#include "base/Clock.h"
#include "model/ModelContext.h"

#include <QTimeZone>

#include <utility>

namespace brinemark
{

namespace
{

/// The first moment of the date's day in the date's own zone: 00:00:00, or later when a clock change skips it.
QDateTime dayStart(const QDateTime &date)
{
    switch (date.timeSpec()) {
    case Qt::TimeZone:
        return date.date().startOfDay(date.timeZone());
    case Qt::OffsetFromUTC:
        return date.date().startOfDay(Qt::OffsetFromUTC, date.offsetFromUtc());
    case Qt::UTC:
    case Qt::LocalTime:
        break;
    }
    return date.date().startOfDay(date.timeSpec());
}

} // namespace

bool Schedule::warningDateCheck(const std::shared_ptr<ScheduleData> &record, Tank *)
{
    if (!record->date.isValid() || dayStart(record->date) > clock::now())
        return false;
    ModelContext::sharedInstance().setNotificationData(record);
    return true;
}

void Schedule::appendFromDict(const plist::Dict &dict)
{
    RecordContainer::appendFromDict(dict);
    if (!scheduleArray().back()->complete())
        m_toCheck.push_back(scheduleArray().back());
}

void Schedule::announceOverdue()
{
    const Records toCheck = std::exchange(m_toCheck, {});
    if (!ModelContext::sharedInstance().checksOverdue())
        return;
    bool found = false;
    for (const std::shared_ptr<ScheduleData> &record : toCheck)
        found = warningDateCheck(record, tank()) || found;
    if (found)
        ModelContext::sharedInstance().shouldShowWindow(true);
}

} // namespace brinemark
