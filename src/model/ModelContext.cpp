// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ModelContext.h"

#include "base/PreferenceKeys.h"

#include <algorithm>

namespace brinemark
{

ModelContext &ModelContext::sharedInstance()
{
    // Never destroyed, because observers of static lifetime deregister at exit in an unknown order.
    static auto *context = new ModelContext;
    return *context;
}

void ModelContext::reScheduleIfNeeded(ScheduleData &record) const
{
    if (m_reScheduleRule)
        m_reScheduleRule(record);
}

bool ModelContext::checksOverdue() const
{
    return Preferences::shared().value(preference::activityOverdue, false);
}

void ModelContext::listGainedRecord(Tank &tank, ContainerKind kind) const
{
    notify([&](ModelObserver &observer) {
        if (traitsOf(kind).isLivestock())
            observer.livestockChanged(tank, kind);
        else
            observer.journalRecordInserted(tank, kind);
    });
}

void ModelContext::listLostRecord(Tank &tank, ContainerKind kind) const
{
    notify([&](ModelObserver &observer) {
        if (traitsOf(kind).isLivestock())
            observer.livestockChanged(tank, kind);
        else
            observer.journalRecordRemoved(tank, kind);
    });
}

void ModelContext::postDoneChecked(ScheduleData &record) const
{
    notify([&](ModelObserver &observer) { observer.doneChecked(record); });
}

void ModelContext::postScheduleDataDeleted(ScheduleData &record) const
{
    notify([&](ModelObserver &observer) { observer.scheduleDataDeleted(record); });
}

void ModelContext::setNotificationData(const std::shared_ptr<ScheduleData> &record) const
{
    notify([&](ModelObserver &observer) { observer.setNotificationData(record); });
}

void ModelContext::shouldShowWindow(bool show) const
{
    notify([&](ModelObserver &observer) { observer.shouldShowWindow(show); });
}

void ModelContext::notify(const std::function<void(ModelObserver &)> &tell) const
{
    // A notice may add or destroy observers: iterate over a copy, and skip observers that no longer exist.
    const std::vector<ModelObserver *> observers = m_observers;
    for (ModelObserver *observer : observers) {
        if (std::find(m_observers.begin(), m_observers.end(), observer) != m_observers.end())
            tell(*observer);
    }
}

} // namespace brinemark
