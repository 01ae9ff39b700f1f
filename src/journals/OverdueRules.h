// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ScheduleData.h"

#include <memory>
#include <vector>

namespace brinemark
{

class TankList;

/// The activities of all tanks that are overdue at `now`: not done, with a due date and time that has been reached.
/// They are in the order of the tanks. (`Schedule::warningDateCheck`, which runs while a file is read, counts the whole
/// day of the due date.)
[[nodiscard]] std::vector<std::shared_ptr<ScheduleData>> overdueActivities(const TankList &tanks, const QDateTime &now);

/// The titles of dock menu items: a tank's heading, and an activity indented below it. An activity's title is cut off
/// after 70 characters, with three dots added.
[[nodiscard]] QString dockMenuTankTitle(const QString &tankName);
[[nodiscard]] QString dockMenuActivityTitle(const QString &activity);

} // namespace brinemark
