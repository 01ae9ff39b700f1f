// SPDX-License-Identifier: GPL-3.0-or-later

#include "ModelTest.h"

#include "base/PreferenceKeys.h"
#include "model/TankReadError.h"

#include <QTimeZone>

using namespace brinemark;
using test::row;

class OverdueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dueFromMidnightOfItsOwnZone_data()
    {
        // now: UTC
        test::columns<QDateTime, QString, bool>("date", "now", "due");
        const QDateTime berlin(QDate(2026, 3, 14), QTime(18, 0), Qt::OffsetFromUTC, 3600);
        row("a second before its midnight", berlin, "2026-03-13T22:59:59Z", false);
        row("at its midnight", berlin, "2026-03-13T23:00:00Z", true);
        row("days later", berlin, "2026-03-20T12:00:00Z", true);
        const QDateTime newYork(QDate(2026, 3, 14), QTime(0, 0), Qt::OffsetFromUTC, -5 * 3600);
        row("west, before", newYork, "2026-03-14T04:59:59Z", false);
        row("west, at", newYork, "2026-03-14T05:00:00Z", true);
        const QDateTime named(QDate(2026, 7, 14), QTime(23, 0), QTimeZone("Asia/Tokyo"));
        row("named zone, before", named, "2026-07-13T14:59:59Z", false);
        row("named zone, at", named, "2026-07-13T15:00:00Z", true);
        const QDateTime local(QDate(2026, 3, 14), QTime(18, 0)); // Europe/Berlin in the tests' environment
        row("local, before", local, "2026-03-13T22:59:59Z", false);
        row("local, at", local, "2026-03-13T23:00:00Z", true);
        row("no date", QDateTime(), "2026-03-14T12:00:00Z", false);
    }

    void dueFromMidnightOfItsOwnZone()
    {
        const auto [date, now, due] = test::fetch<QDateTime, QString, bool>("date", "now", "due");
        const clock::FixedClock fixed(QDateTime::fromString(now, Qt::ISODate));
        test::NoticeLog log;
        Tank tank(QStringLiteral("T"));
        const auto record = std::make_shared<ScheduleData>(&tank);
        record->date = date;
        QCOMPARE(tank.schedule()->warningDateCheck(record, &tank), due);
        QCOMPARE(log.overdue.size(), std::size_t(due));
    }

    void readingAnnouncesWhatIsDue()
    {
        const clock::FixedClock fixed(QDateTime(QDate(2026, 3, 14), QTime(9, 0)));
        Tank written(QStringLiteral("T"));
        written.bundleVersion = 1;
        const auto add = [&](const char *activity, int days, bool complete) {
            const auto record = std::make_shared<ScheduleData>(&written);
            record->activity = QString::fromLatin1(activity);
            record->date = clock::now().addDays(days).addSecs(3600 * 9);
            record->setComplete(complete);
            written.schedule()->appendRecord(record);
        };
        add("tomorrow", 1, false);
        add("today", 0, false);
        add("done yesterday", -1, true);
        add("last week", -7, false);
        const plist::Dict dict = written.tankDictionary();

        test::NoticeLog log;
        for (const bool stored : {false, true}) {
            if (stored)
                Preferences::shared().set(preference::activityOverdue, false);
            (void)Tank::fromDict(dict);
            QVERIFY(log.overdue.empty());
            QVERIFY(log.notices.isEmpty());
        }
        Preferences::shared().set(preference::activityOverdue, true);
        const auto tank = Tank::fromDict(dict);
        QCOMPARE(log.overdue.size(), std::size_t(2));
        QCOMPARE(log.overdue.at(0)->activity, QStringLiteral("today"));
        QCOMPARE(log.overdue.at(0)->tank.get(), tank.get());
        QCOMPARE(log.overdue.at(1)->activity, QStringLiteral("last week"));
        QCOMPARE(log.notices, QStringList{QStringLiteral("show")});

        // A tank that fails after its schedule was read announces nothing.
        plist::Dict lists = *dict.find(u"TankLists")->dict();
        lists.insert(QStringLiteral("TankNote"), plist::Array{QStringLiteral("no record")});
        plist::Dict unreadable = dict;
        unreadable.insert(QStringLiteral("TankLists"), lists);
        log.overdue.clear();
        log.notices.clear();
        QVERIFY_EXCEPTION_THROWN((void)Tank::fromDict(unreadable), TankReadError);
        QVERIFY(log.overdue.empty());
        QVERIFY(log.notices.isEmpty());
    }
};

BRINEMARK_TEST(QGuiApplication, OverdueTest)
#include "tst_overdue.moc"
