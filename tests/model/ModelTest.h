// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/Clock.h"
#include "model/LivestockData.h"
#include "model/ModelContext.h"
#include "model/Tank.h"
#include "model/TankList.h"
#include "support/TestProgram.h"

#include <QGuiApplication>
#include <QTest>

namespace brinemark::test
{

/// A tank list that is the application's during its lifetime.
class AppTanks : public TankList
{
public:
    AppTanks() { ModelContext::sharedInstance().setAppTankList(this); }
    ~AppTanks() { ModelContext::sharedInstance().setAppTankList(nullptr); }

    std::shared_ptr<Tank> add(const QString &name)
    {
        append(std::make_shared<Tank>(name));
        return at(count() - 1);
    }
};

/// Writes down every notice of the model.
class NoticeLog : public ModelObserver
{
public:
    QStringList notices;
    std::vector<std::shared_ptr<ScheduleData>> overdue;

    void livestockChanged(Tank &tank, ContainerKind kind) override { add("livestock", tank, kind); }
    void journalRecordInserted(Tank &tank, ContainerKind kind) override { add("gained", tank, kind); }
    void journalRecordRemoved(Tank &tank, ContainerKind kind) override { add("lost", tank, kind); }
    void doneChecked(ScheduleData &record) override { notices << QStringLiteral("done ") + record.activity; }
    void scheduleDataDeleted(ScheduleData &record) override { notices << QStringLiteral("deleted ") + record.activity; }
    void setNotificationData(const std::shared_ptr<ScheduleData> &record) override { overdue.push_back(record); }
    void shouldShowWindow(bool show) override { notices << (show ? QStringLiteral("show") : QStringLiteral("hide")); }

private:
    void add(const char *what, const Tank &tank, ContainerKind kind)
    {
        notices << QLatin1String(what) + u' ' + tank.name + u' ' + traitsOf(kind).listKey.toString();
    }
};

/// A new record of the kind that a container holds.
inline std::shared_ptr<Record> newRecord(ContainerKind kind)
{
    switch (kind) {
    case ContainerKind::Condition:
        return std::make_shared<ConditionData>();
    case ContainerKind::Schedule:
        return std::make_shared<ScheduleData>();
    case ContainerKind::Inventory:
        return std::make_shared<InventoryData>();
    case ContainerKind::Expense:
        return std::make_shared<ExpenseData>();
    case ContainerKind::Note:
        return std::make_shared<NoteData>();
    default:
        return makeItemData(traitsOf(kind).itemContext, nullptr);
    }
}

} // namespace brinemark::test
