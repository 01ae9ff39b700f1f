// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ScheduleData.h"

#include <memory>
#include <vector>

namespace brinemark
{

class TankList;

/// What is overdue at a moment: of all tanks, in their order, the activities that are not done and whose due date and
/// time has come. (While a file is read, whatever is due that day counts already: see `Schedule::warningDateCheck`.)
[[nodiscard]] std::vector<std::shared_ptr<ScheduleData>> overdueActivities(const TankList &tanks, const QDateTime &now);

/// The dock menu's titles: a tank's heading and, below it, an activity, cut off with dots beyond 70 characters.
[[nodiscard]] QString dockMenuTankTitle(const QString &tankName);
[[nodiscard]] QString dockMenuActivityTitle(const QString &activity);

} // namespace brinemark
