// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

/// The maintenance schedule of the current tank.
class ScheduleListController : public RecordListController, public Shared<ScheduleListController>
{
    Q_OBJECT

protected:
    void willDeleteRecord(Record &record) override;  ///< who shows the activity elsewhere hears of it
    void doneChecked(ScheduleData &record) override; ///< wherever it was done

private:
    friend class Shared<ScheduleListController>;
    ScheduleListController();
};

} // namespace brinemark
