// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ModelObserver.h"

#include <functional>
#include <vector>

namespace brinemark
{

class TankList;

/// What the model shares process-wide: the application's tank list, the rescheduling rule and the observers.
class ModelContext
{
public:
    static ModelContext &sharedInstance();

    /// The list that its owner, the tank tree, handed in; null before that.
    [[nodiscard]] TankList *appTankList() const { return m_appTankList; }
    void setAppTankList(TankList *list) { m_appTankList = list; }

    /// The completion rule, which belongs to the schedule: run by `ScheduleData::setComplete` on what reschedules
    /// itself.
    using ReScheduleRule = std::function<void(ScheduleData &)>;
    void setReScheduleRule(ReScheduleRule rule) { m_reScheduleRule = std::move(rule); }
    void reScheduleIfNeeded(ScheduleData &record) const;

    /// Whether reading a schedule looks for overdue activities: the preference "activityOverdue".
    [[nodiscard]] bool checksOverdue() const;

    // Notices to every observer.
    void listGainedRecord(Tank &tank, ContainerKind kind) const;
    void listLostRecord(Tank &tank, ContainerKind kind) const;
    void postDoneChecked(ScheduleData &record) const;
    void postScheduleDataDeleted(ScheduleData &record) const;
    void setNotificationData(const std::shared_ptr<ScheduleData> &record) const;
    void shouldShowWindow(bool show) const;

private:
    friend class ModelObserver;

    void notify(const std::function<void(ModelObserver &)> &tell) const;

    TankList *m_appTankList = nullptr;
    ReScheduleRule m_reScheduleRule;
    std::vector<ModelObserver *> m_observers;
};

} // namespace brinemark
