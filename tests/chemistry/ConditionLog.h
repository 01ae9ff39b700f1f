// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/views/ConditionListController.h"
#include "support/ListDriver.h"
#include "ui/AlertPanelDontAskAgain.h"
#include "ui/Alerts.h"
#include "ui/calendar/CalendarController.h"

#include <QAbstractItemModelTester>

namespace brinemark::test
{

enum Column { Date, Ph, Ammonia, Calcium };
inline const QString notTestedIdentifier = QStringLiteral("DontShowAgainNotTested");

/// A tank with one test a day, the oldest first, of pH 7.0, 7.1 and so on.
inline std::shared_ptr<Tank> makeTank(int tests)
{
    auto tank = std::make_shared<Tank>(QStringLiteral("Reef"));
    for (int i = 0; i < tests; ++i) {
        auto record = std::make_shared<ConditionData>(tank.get());
        record->date = QDateTime(QDate(2026, 1, 1 + i), QTime(9, 0));
        record->ph = 7.0F + float(i) / 10;
        tank->condition()->appendRecord(record);
    }
    tank->condition()->setColumnInfoArray({{"date", 0}, {"ph", 0}, {"ammonia", 0}, {"calcium", 0}});
    tank->condition()->setSortIdentifier(QStringLiteral("ph"));
    for (const ParameterTraits &parameter : parameterTable)
        tank->target(parameter.parameter)->warningOn = false;
    return tank;
}

inline QString number(double value)
{
    return QLocale().toString(value, 'f', 2);
}

/// The log of a tank with five tests, sorted by pH, on screen in an active window. Every change of its model is
/// checked.
class ConditionLog
{
protected:
    /// False when the window does not become active.
    bool open()
    {
        AlertPanelDontAskAgain::setValue(1, notTestedIdentifier);
        m_shell = std::make_unique<RecordingShell>();
        m_shell->appendTank(makeTank(5));
        m_tank = m_shell->tanks.at(0);
        present(log(), *m_shell);
        m_tester = std::make_unique<QAbstractItemModelTester>(table()->model());
        m_shell->window.activateWindow();
        return QTest::qWaitForWindowActive(&m_shell->window);
    }
    void close()
    {
        m_tester.reset();
        ConditionListController::destroyShared();
        CalendarController::destroyShared();
        m_shell.reset();
        m_tank.reset();
    }

    static ConditionListController &log() { return ConditionListController::sharedInstance(); }
    static QTableView *table() { return log().table(); }
    /// The open cell editor; null when nothing is edited.
    static QWidget *editor() { return table()->indexWidget(table()->currentIndex()); }
    static QStringView conditionKey(int column)
    {
        constexpr std::array keys{QStringView(u"date"), QStringView(u"ph"), QStringView(u"ammonia"),
                                  QStringView(u"calcium")};
        return keys.at(std::size_t(column));
    }
    static void edit(int row, int column, double value)
    {
        QVERIFY(table()->model()->setData(table()->model()->index(row, column), value));
    }

    std::unique_ptr<RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

} // namespace brinemark::test
