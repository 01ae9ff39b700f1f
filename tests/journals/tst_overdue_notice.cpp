// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Clock.h"
#include "base/PreferenceKeys.h"
#include "journals/OverdueRules.h"
#include "journals/views/NotificationController.h"
#include "journals/views/ScheduleListController.h"
#include "support/RecordingShell.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QCheckBox>
#include <QTableView>
#include <QToolButton>

using namespace brinemark;

class TestOverdueNotice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        m_tank = std::make_shared<Tank>(QStringLiteral("Reef"));
        m_shell->appendTank(m_tank);
        m_shell->window.show();
        Preferences::shared().remove(preference::notificationWindowHeight);
    }
    void cleanup()
    {
        NotificationController::destroyShared();
        ScheduleListController::destroyShared();
        m_tank.reset();
        m_shell.reset();
    }

    void overdueByTheInstant()
    {
        const QDateTime now(QDate(2026, 5, 4), QTime(9, 0));
        const auto before = add("before", now.addSecs(-1));
        const auto exactly = add("exactly", now);
        add("later today", now.addSecs(9 * 3600));
        add("done", now.addDays(-2))->setComplete(true);
        add("undated", {});
        const auto found = overdueActivities(m_shell->tanks, now);
        QCOMPARE(found, (std::vector<std::shared_ptr<ScheduleData>>{before, exactly}));
    }

    void menuCommandToggles()
    {
        clock::FixedClock clock(QDateTime(QDate(2026, 5, 4), QTime(9, 0)));
        auto &notice = NotificationController::sharedInstance();
        notice.showOverdue();
        QCOMPARE(m_shell->beeps, 1);
        QVERIFY(!notice.isVisible());
        add("due today at six", QDateTime(QDate(2026, 5, 4), QTime(18, 0)));
        notice.showOverdue();
        QCOMPARE(m_shell->beeps, 2);
        clock.advance(std::chrono::hours(9));
        notice.showOverdue();
        QVERIFY(notice.isVisible());
        QCOMPARE(rows().size(), 1);
        notice.showOverdue();
        QVERIFY(!notice.isVisible());
        QVERIFY(m_shell->dock.isEmpty());
        QCOMPARE(m_shell->beeps, 2);
    }

    void rowsFollowTheirActivities()
    {
        const clock::FixedClock clock(QDateTime(QDate(2026, 5, 4), QTime(9, 0)));
        const auto feed = add("feed", QDateTime(QDate(2026, 5, 1), QTime(9, 0)));
        const auto clean = add("clean", QDateTime(QDate(2026, 5, 2), QTime(9, 0)));
        NotificationController::sharedInstance().showOverdue();
        QCOMPARE(rows().size(), 2);
        auto *feedCheck = rows()[0]->findChild<QCheckBox *>(QStringLiteral("noteComplete"));
        feedCheck->click();
        QVERIFY(feed->complete());
        QCOMPARE(m_shell->changes, 1);
        feed->setComplete(false);
        QVERIFY(!feedCheck->isChecked());
        QAction *dockItem = m_shell->dock.actions().at(1);
        QCOMPARE(dockItem->text(), QStringLiteral("    feed"));
        dockItem->trigger();
        QVERIFY(feed->complete() && feedCheck->isChecked());

        auto *link = rows()[1]->findChild<QToolButton *>(QStringLiteral("linkButton"));
        ScheduleListController::sharedInstance().setKeyViewWithTankList(&m_shell->window, &m_shell->window);
        link->click();
        QCOMPARE(m_shell->selectedContainer, m_tank->container(ContainerKind::Schedule));
        QCOMPARE(ScheduleListController::sharedInstance().selectedRecords().front(), clean);

        ModelContext::sharedInstance().postScheduleDataDeleted(*clean);
        m_tank->removeFromScheduleListArrayAtIndex(m_tank->schedule()->indexOf(clean.get()));
        QVERIFY(!link->isEnabled());
        QVERIFY(!rows()[1]->findChild<QCheckBox *>(QStringLiteral("noteComplete"))->isEnabled());
        QCOMPARE(m_shell->dock.actions().size(), 2);
    }

    void heightAndPlace()
    {
        const clock::FixedClock clock(QDateTime(QDate(2026, 5, 4), QTime(9, 0)));
        for (int i = 0; i < 12; ++i)
            add("feed", QDateTime(QDate(2026, 5, 1), QTime(9, 0)));
        auto &notice = NotificationController::sharedInstance();
        notice.placeAt({40, 60});
        notice.showOverdue();
        QCOMPARE(notice.notePanel()->height(), 117);
        QCOMPARE(notice.notePanel()->pos(), QPoint(40, 60));
        notice.notePanel()->resize(420, 200);
        notice.notePanel()->close();
        QCOMPARE(Preferences::shared().value(preference::notificationWindowHeight), 200.0F);
        notice.showOverdue();
        QCOMPARE(notice.notePanel()->height(), 200);
        notice.notePanel()->close();
        m_tank->schedule()->clear();
        add("only one", QDateTime(QDate(2026, 5, 1), QTime(9, 0)));
        notice.showOverdue();
        QVERIFY(notice.notePanel()->height() < 117); // no higher than its rows
    }

    void showsOnceAfterReading()
    {
        auto &notice = NotificationController::sharedInstance();
        notice.showIfNeeded();
        QVERIFY(!notice.isVisible());
        notice.setNotificationData(add("feed", QDateTime(QDate(2026, 5, 1), QTime(9, 0))));
        notice.shouldShowWindow(true);
        notice.showIfNeeded();
        QVERIFY(notice.isVisible());
        notice.notePanel()->close();
        notice.showIfNeeded();
        QVERIFY(!notice.isVisible());
        // After a file that could not be read whole nothing shows the panel; the next document empties it.
        notice.shouldShowWindow(true);
        notice.resetView();
        notice.showIfNeeded();
        QVERIFY(!notice.isVisible());
    }

    void dockMenuTitles()
    {
        QCOMPARE(dockMenuTankTitle(QStringLiteral("Reef")), QStringLiteral("  Reef"));
        QCOMPARE(dockMenuActivityTitle(QString(66, u'x')), QStringLiteral("    ") + QString(66, u'x'));
        QCOMPARE(dockMenuActivityTitle(QString(67, u'x')),
                 QStringLiteral("    ") + QString(66, u'x') + QStringLiteral("..."));
    }

private:
    std::shared_ptr<ScheduleData> add(const char *activity, const QDateTime &date)
    {
        auto record = std::make_shared<ScheduleData>(m_tank.get());
        record->activity = QLatin1String(activity);
        record->date = date;
        m_tank->schedule()->appendRecord(record);
        return record;
    }
    QList<QWidget *> rows() const
    {
        return NotificationController::sharedInstance().notePanel()->findChildren<QWidget *>(
            QStringLiteral("notificationView"));
    }

    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
};

BRINEMARK_TEST(QApplication, TestOverdueNotice)
#include "tst_overdue_notice.moc"
