// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/RecordContainer.h"
#include "model/ScheduleData.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's maintenance schedule.
class Schedule final : public RecordContainer<ScheduleData>
{
public:
    explicit Schedule(Tank *parent)
        : RecordContainer(ContainerKind::Schedule, parent)
    {
    }

    [[nodiscard]] Records &scheduleArray() { return records(); }
    [[nodiscard]] const Records &scheduleArray() const { return records(); }

    /// Whether the activity's due day, in the time zone of its own date, has begun. If so, sends the notice
    /// `ModelObserver::setNotificationData`. An activity without a date is never due.
    bool warningDateCheck(const std::shared_ptr<ScheduleData> &record, Tank *parent);

    /// Checks the unfinished activities that were read from a file, in file order, and sends `shouldShowWindow` when
    /// one was due. Called once the whole tank is read, so that a tank that cannot be read announces nothing.
    void announceOverdue();

    /// The first five activities, each followed by a comma and a blank.
    [[nodiscard]] QString metaScheduleString() const { return journalMetaString(*this, u"activity"); }

protected:
    void appendFromDict(const plist::Dict &dict) override;

private:
    Records m_toCheck; ///< the unfinished activities that were read and not yet checked
};

} // namespace brinemark
