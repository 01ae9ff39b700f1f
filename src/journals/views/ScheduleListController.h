// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

/// The list of the current tank's maintenance activities.
class ScheduleListController : public RecordListController, public Shared<ScheduleListController>
{
    Q_OBJECT

protected:
    void willDeleteRecord(Record &record) override;  ///< tells all observers, such as the overdue notice
    void doneChecked(ScheduleData &record) override; ///< called whenever an activity's done mark is set, from any view

private:
    friend class Shared<ScheduleListController>;
    ScheduleListController();
};

} // namespace brinemark
