// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ContainerKind.h"

#include <memory>

namespace brinemark
{

class Tank;
struct ScheduleData;

/// Receives the model's notices from its construction to its destruction. Derived classes override the notices that
/// they need. Main thread only.
class ModelObserver
{
public:
    ModelObserver();
    virtual ~ModelObserver();
    ModelObserver(const ModelObserver &) = delete;
    ModelObserver &operator=(const ModelObserver &) = delete;

    /// A livestock list of the tank gained or lost a record: the tree updates its display.
    virtual void livestockChanged(Tank &tank, ContainerKind kind);
    /// A journal list of the tank gained a record: its list controller re-sorts and clears the selection.
    virtual void journalRecordInserted(Tank &tank, ContainerKind kind);
    /// A journal list of the tank lost a record: its list controller updates its display.
    virtual void journalRecordRemoved(Tank &tank, ContainerKind kind);

    /// "DoneChecked": the activity's done mark was set. To keep the record, take its `shared_from_this()`.
    virtual void doneChecked(ScheduleData &record);
    /// "ScheduleDataDeleted": the activity is about to be deleted.
    virtual void scheduleDataDeleted(ScheduleData &record);

    /// An overdue activity was found: the overdue notice gains a row.
    virtual void setNotificationData(const std::shared_ptr<ScheduleData> &record);
    /// A schedule with overdue activities has been read: the overdue notice opens at the next opportunity.
    virtual void shouldShowWindow(bool show);
};

} // namespace brinemark
