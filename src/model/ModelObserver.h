// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ContainerKind.h"

#include <memory>

namespace brinemark
{

class Tank;
struct ScheduleData;

/// What the model tells whoever shows it. An observer hears from its construction to its destruction and overrides what
/// it wants to know. Main thread only.
class ModelObserver
{
public:
    ModelObserver();
    virtual ~ModelObserver();
    ModelObserver(const ModelObserver &) = delete;
    ModelObserver &operator=(const ModelObserver &) = delete;

    /// A livestock list of the tank gained or lost a record: the tree brings its display up to date.
    virtual void livestockChanged(Tank &tank, ContainerKind kind);
    /// A journal list of the tank gained a record: its list controller re-sorts and selects nothing.
    virtual void journalRecordInserted(Tank &tank, ContainerKind kind);
    /// A journal list of the tank lost a record: its list controller brings its display up to date.
    virtual void journalRecordRemoved(Tank &tank, ContainerKind kind);

    /// "DoneChecked": the activity's done mark was set. Keep it with `shared_from_this` if need be.
    virtual void doneChecked(ScheduleData &record);
    /// "ScheduleDataDeleted": the activity is about to be deleted.
    virtual void scheduleDataDeleted(ScheduleData &record);

    /// An overdue activity was found: the overdue notice gains a row.
    virtual void setNotificationData(const std::shared_ptr<ScheduleData> &record);
    /// A schedule with overdue activities has been read: the overdue notice shows at the next opportunity.
    virtual void shouldShowWindow(bool show);
};

} // namespace brinemark
