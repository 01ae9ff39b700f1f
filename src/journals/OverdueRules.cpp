// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/OverdueRules.h"

#include "model/Tank.h"
#include "model/TankList.h"

namespace brinemark
{

std::vector<std::shared_ptr<ScheduleData>> overdueActivities(const TankList &tanks, const QDateTime &now)
{
    std::vector<std::shared_ptr<ScheduleData>> overdue;
    for (const auto &tank : tanks) {
        for (const auto &activity : tank->scheduleListArray()) {
            if (!activity->complete() && activity->date.isValid() && activity->date <= now)
                overdue.push_back(activity);
        }
    }
    return overdue;
}

QString dockMenuTankTitle(const QString &tankName)
{
    return QStringLiteral("  ") + tankName;
}

QString dockMenuActivityTitle(const QString &activity)
{
    constexpr int longest = 70; // including the leading spaces
    const QString title = QStringLiteral("    ") + activity;
    return title.size() > longest ? title.left(longest) + QStringLiteral("...") : title;
}

} // namespace brinemark
