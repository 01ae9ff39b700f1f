// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ModelObserver.h"

#include <functional>
#include <vector>

namespace brinemark
{

class TankList;

/// The model's process-wide state: the application's tank list, the rescheduling rule and the observers.
class ModelContext
{
public:
    static ModelContext &sharedInstance();

    /// The application's tank list, set by its owner, the tank tree; null before that.
    [[nodiscard]] TankList *appTankList() const { return m_appTankList; }
    void setAppTankList(TankList *list) { m_appTankList = list; }

    /// The rule that `ScheduleData::setComplete` runs on an activity with `autoReschedule`. Set from outside, because
    /// the rule belongs to the journals, which the model does not link. No rule is set yet: activities only get their
    /// tick.
    using ReScheduleRule = std::function<void(ScheduleData &)>;
    void setReScheduleRule(ReScheduleRule rule) { m_reScheduleRule = std::move(rule); }
    void reScheduleIfNeeded(ScheduleData &record) const;

    /// Whether reading a schedule looks for overdue activities: the preference "activityOverdue".
    [[nodiscard]] bool checksOverdue() const;

    // Each of these notifies every observer.
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
