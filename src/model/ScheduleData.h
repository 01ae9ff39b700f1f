// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Record.h"

#include <QDateTime>
#include <QString>

namespace brinemark
{

class StyledText;

template <class R>
struct FieldTable;

/// A maintenance activity.
struct ScheduleData final : Record {
    QDateTime date; ///< when it is due
    QString activity;
    float nextDate = 0; ///< rescheduling interval in seconds; the next due date is `date` + `nextDate`

    explicit ScheduleData(Tank *parent = nullptr);
    explicit ScheduleData(Blank) {}

    [[nodiscard]] bool complete() const { return m_complete; }
    /// Stores the done mark, reschedules when `autoReschedule` is on, then sends "DoneChecked".
    void setComplete(bool complete);

    [[nodiscard]] bool autoReschedule() const { return m_autoReschedule; }
    void setAutoReschedule(bool autoReschedule); ///< off sets `nextDate` to 0

    /// Runs the rescheduling rule that ModelContext holds.
    void reScheduleIfNeeded();

    [[nodiscard]] StyledText scheduleDataAttributedString() const; ///< captions and values, for reading and printing

    [[nodiscard]] RecordType recordType() const override { return RecordType::Schedule; }
    [[nodiscard]] std::shared_ptr<Record> copy() const override; ///< also sends "DoneChecked" for the copy

private:
    friend struct FieldTable<ScheduleData>;

    bool m_complete = false;
    bool m_autoReschedule = false;
};

} // namespace brinemark
