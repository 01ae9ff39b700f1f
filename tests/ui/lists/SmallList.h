// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/Preferences.h"
#include "support/ListDriver.h"
#include "ui/Alerts.h"
#include "ui/calendar/CalendarController.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>

namespace brinemark::test
{

enum SmallListColumn { Done, Due, Activity, Interval, Repeats };

inline constexpr auto smallListColumns = std::to_array<RecordColumn>({
    {.identifier = u"complete", .header = "DoneColumnTooltip"_key, .kind = ColumnKind::Flag, .editable = true},
    {.identifier = u"date", .header = "ColumnDue"_key, .kind = ColumnKind::Date, .editable = true},
    {.identifier = u"activity", .header = "ColumnActivity"_key, .width = 280, .editable = true},
    {.identifier = u"nextDate", .header = "ColumnNext"_key, .kind = ColumnKind::Number, .editable = true},
    {.identifier = u"autoReschedule", .header = "ColumnRepeats"_key, .kind = ColumnKind::Flag}, // only shown
});

/// A list of activities that leaves everything to the base of the lists, and writes down what the base tells it.
class SmallList : public RecordListController
{
public:
    SmallList()
        : RecordListController({.kind = ContainerKind::Schedule,
                                .itemKey = "ScheduleItem"_key,
                                .emptySentenceKey = "EmptySchedule"_key,
                                .makeRecord = &makeNewRecord<ScheduleData>,
                                .columns = smallListColumns,
                                .layoutName = "SmallList",
                                .undoActionName = "SmallUndo"})
    {
    }

    QStringList edited;  ///< "identifier" of each cellEdited(), with "*" where the text has changed
    QStringList deleted; ///< activities, in the order of willDeleteRecord()

protected:
    void cellEdited(Record &, const RecordColumn &column, bool changed) override
    {
        edited << column.identifier.toString() + (changed ? "*" : "");
    }
    void willDeleteRecord(Record &record) override { deleted << static_cast<ScheduleData &>(record).activity; }
};

/// Activities "a", "b" ... due one day after the other, the first on 1 January 2026, sorted by activity.
inline std::shared_ptr<Tank> tankWithActivities(int count)
{
    auto tank = std::make_shared<Tank>(QStringLiteral("Reef"));
    for (int i = 0; i < count; ++i) {
        auto record = std::make_shared<ScheduleData>(tank.get());
        record->activity = QChar(u'a' + i);
        record->date = QDateTime(QDate(2026, 1, 1 + i), QTime(9, 0));
        tank->schedule()->appendRecord(record);
    }
    tank->schedule()->setSortIdentifier(QStringLiteral("activity"));
    return tank;
}

/// The small list of a tank with five activities, on screen in an active window. Every change of its model is checked.
class SmallListOnScreen
{
protected:
    /// False when the window does not become active.
    bool open()
    {
        Preferences::shared().setVariant(QStringLiteral("TableColumns SmallList"), {});
        m_shell = std::make_unique<RecordingShell>();
        m_tank = tankWithActivities(5);
        m_shell->appendTank(m_tank);
        m_beeps = 0;
        setBeepHandler([this] { ++m_beeps; });
        show();
        m_shell->window.activateWindow();
        return QTest::qWaitForWindowActive(&m_shell->window);
    }
    void close()
    {
        m_tester.reset();
        m_list.reset();
        CalendarController::destroyShared();
        m_shell.reset();
        m_tank.reset();
        setBeepHandler({});
    }

    /// Makes the list anew, as the next start of the program does.
    void show()
    {
        m_tester.reset();
        m_list.reset();
        m_list = std::make_unique<SmallList>();
        present(*m_list, *m_shell);
        m_tester = std::make_unique<QAbstractItemModelTester>(table()->model());
    }

    /// Makes a second tank with this many activities the current one.
    Tank &showAnotherTank(int count)
    {
        m_shell->appendTank(tankWithActivities(count));
        m_list->updateDisplay();
        return *m_shell->current;
    }

    [[nodiscard]] RecordTableView *table() const { return m_list->table(); }
    [[nodiscard]] QModelIndex cell(int row, int column) const { return table()->model()->index(row, column); }
    [[nodiscard]] QString activities() const { return column(table(), Activity).join(QString()); }
    [[nodiscard]] ScheduleData &record(int row) const
    {
        return static_cast<ScheduleData &>(*m_tank->schedule()->recordAt(row));
    }
    [[nodiscard]] QLineEdit *editor() const { return table()->findChild<QLineEdit *>(QStringLiteral("cellEditor")); }
    template <class Button>
    [[nodiscard]] Button *button(const char *name) const
    {
        return m_list->view()->findChild<Button *>(QLatin1String(name));
    }
    void rename(int row, const QString &activity) const
    {
        QVERIFY(table()->model()->setData(cell(row, Activity), activity));
    }

    std::unique_ptr<RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
    std::unique_ptr<SmallList> m_list;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    int m_beeps = 0;
};

} // namespace brinemark::test
