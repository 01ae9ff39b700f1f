// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Clock.h"
#include "base/PreferenceKeys.h"
#include "online/UpdateSchedule.h"
#include "online/views/QZUpdateController.h"
#include "support/RecordingShell.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>

using namespace brinemark;

namespace
{

int checksStarted = 0;

void countChecks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    checksStarted += message == QLatin1String("Brinemark - Checking for an update online...") ? 1 : 0;
}

} // namespace

class TestUpdateSchedule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksWhenDue_data()
    {
        // secondsAgo: -1 when no date is stored
        test::columns<QVariant, int, int, bool>("automatic", "secondsAgo", "frequency", "checks");
        constexpr int week = 604800;
        QTest::newRow("off") << QVariant(false) << 10 * week << week << false;
        QTest::newRow("nothing stored") << QVariant() << 10 * week << week << false;
        QTest::newRow("first time") << QVariant(true) << -1 << week << false;
        QTest::newRow("a second early") << QVariant(true) << week - 1 << week << false;
        QTest::newRow("on the second") << QVariant(true) << week << week << true;
        QTest::newRow("late") << QVariant(true) << 9 * week << 4 * week << true;
        QTest::newRow("every start") << QVariant(true) << 0 << -1 << true;
    }
    void checksWhenDue()
    {
        const QDateTime now(QDate(2026, 5, 4), QTime(9, 0), Qt::UTC);
        const clock::FixedClock clock(now);
        Preferences &preferences = Preferences::shared();
        const auto [automatic, secondsAgo, frequency] =
            test::fetch<QVariant, int, int>("automatic", "secondsAgo", "frequency");
        preferences.setVariant(QLatin1String(preference::updateAuto.name), automatic);
        preferences.set(preference::updateFrequency, frequency);
        if (secondsAgo < 0)
            preferences.remove(preference::updateLastChecked);
        else
            preferences.set(preference::updateLastChecked, now.addSecs(-secondsAgo));
        checksStarted = 0;
        const QtMessageHandler before = qInstallMessageHandler(&countChecks);
        QZUpdateController::sharedInstance().launchUpdateCheck();
        qInstallMessageHandler(before);
        QTEST(checksStarted == 1, "checks");
        if (secondsAgo < 0)
            QCOMPARE(preferences.value(preference::updateLastChecked), distantPast());
        QZUpdateController::destroyShared();
    }

    void window()
    {
        test::RecordingShell shell;
        auto &controller = QZUpdateController::sharedInstance();
        controller.initDefaults();
        controller.showScheduleWindow();
        auto *window = shell.window.findChild<QDialog *>(QStringLiteral("updateWindow"));
        auto *popup = window->findChild<QComboBox *>(QStringLiteral("checkPopupButton"));
        auto *automatic = window->findChild<QCheckBox *>(QStringLiteral("autoUpdateCheck"));
        QCOMPARE(popup->currentIndex(), 1);
        QVERIFY(automatic->isChecked());
        QCOMPARE(window->findChild<QLabel *>(QStringLiteral("lastCheckField"))->text(),
                 text("NeverChecked", TextTable::Update));
        for (const int seconds : {2419200, -1, 604800}) {
            popup->setCurrentIndex(updateFrequencyIndex(seconds));
            Q_EMIT popup->activated(popup->currentIndex());
            QCOMPARE(Preferences::shared().value(preference::updateFrequency), seconds);
        }
        QCOMPARE(updateFrequencyIndex(86400), 0);
        automatic->click();
        QCOMPARE(Preferences::shared().value(preference::updateAuto), false);
        QZUpdateController::destroyShared();
    }
};

BRINEMARK_TEST(QApplication, TestUpdateSchedule)
#include "tst_update_schedule.moc"
