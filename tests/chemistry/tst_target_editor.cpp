// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/NumberText.h"
#include "chemistry/HighValue.h"
#include "chemistry/TankSheetDriver.h"
#include "chemistry/TargetCheck.h"
#include "support/TestProgram.h"
#include "ui/HelpBook.h"

#include <QLabel>
#include <QTextBrowser>

#include <cmath>

using namespace brinemark;
using brinemark::test::local;
using brinemark::test::row;

class TestTargetEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = std::make_unique<test::TankSheetDriver>(); }
    void cleanup() { m_driver.reset(); }

    // ---- the advice

    void highValues_data()
    {
        // deviation: empty for none in use
        test::columns<QString, bool, QString, QString, bool>("key", "freshwater", "typed", "deviation", "high");
        const auto limit = [](TextKey key, double more = 0) { return QString::number(numberOfText(key) + more); };
        for (const auto &[key, fresh, marine] :
             {std::tuple("ammoniaData", "AmmoniaFreshValue"_key, "AmmoniaSaltValue"_key),
              std::tuple("nitrateData", "NitrateFreshValue"_key, "NitrateSaltValue"_key),
              std::tuple("nitriteData", "NitriteFreshValue"_key, "NitriteSaltValue"_key)}) {
            for (const bool freshwater : {true, false}) {
                const TextKey threshold = freshwater ? fresh : marine;
                const auto add = [&, key = key](const char *what, const QString &typed, const char *deviation,
                                                bool high) {
                    QTest::addRow("%s, %s, %s", key, freshwater ? "fresh" : "marine", what)
                        << key << freshwater << typed << deviation << high;
                };
                add("at the threshold", limit(threshold), "", false);
                add("above", limit(threshold, 0.01), "", true);
                add("with a band to the threshold", limit(threshold, -0.03), "0.03", false);
                add("with a band above", limit(threshold, -0.03), "0.04", true);
            }
        }
        row("no threshold", "phosphateData", true, "90", "9", false);
    }
    void highValues()
    {
        const auto [key, freshwater, typed, deviation, high] =
            test::fetch<QString, bool, QString, QString, bool>("key", "freshwater", "typed", "deviation", "high");
        TankData &target = *m_driver->tank().targetForKey(key);
        target.warningOn = true;
        target.deviationOn = !deviation.isEmpty();
        target.deviationValue = 10; // ignored while no band is in use
        m_driver->tank().freshwater = freshwater;
        m_driver->open(target.name);
        const QSize size = m_driver->sheet()->size();
        if (!deviation.isEmpty())
            m_driver->type("deviationField", local(deviation));
        m_driver->type("preferredField", local(typed));
        QCOMPARE(box()->isVisible(), high);
        if (high) {
            const double value = typed.toDouble() + deviation.toDouble();
            QVERIFY(box()->findChild<QLabel *>("warningTitle")->text().contains(shownNumber(value, 7)));
        }
        // The same for the stored number, in single precision.
        m_driver->click("okButton");
        m_driver->open(target.name);
        QCOMPARE(box()->isVisible(), high);
        QCOMPARE(m_driver->sheet()->size(), size);
    }

    void thresholdsInSinglePrecision()
    {
        QVERIFY(0.1F > 0.1); // the number that a target of 0.1 stores
        QVERIFY(!isHighValue(Parameter::Ammonia, false, 0.1F));
        QVERIFY(!isHighValue(Parameter::Ammonia, false, double(std::nextafter(0.1F, 1.0F)))); // a sum of two floats
        QVERIFY(isHighValue(Parameter::Ammonia, false, 0.100001));
    }

    void adviceFollowsTheControls()
    {
        TankData &nitrate = *m_driver->tank().nitrateData(); // 0 ± the threshold of fresh water
        QVERIFY(nitrate.warningOn && nitrate.deviationOn);
        m_driver->open(nitrate.name);
        QVERIFY(!box()->isVisible());
        m_driver->click("marineButton");
        QVERIFY(box()->isVisible());
        const auto reason = [this] { return box()->findChild<QLabel *>("warningReason")->text(); };
        QVERIFY(reason().contains(shownNumber(numberOfText("NitrateSaltValue"), 7)));
        m_driver->click("deviationCheckbox");
        QVERIFY(!box()->isVisible());
        m_driver->click("deviationCheckbox");
        m_driver->click("warningCheckbox"); // turns the band off as well
        QVERIFY(!box()->isVisible());
        m_driver->click("warningCheckbox");
        QVERIFY(box()->isVisible());
        m_driver->choose("phData");
        QVERIFY(!box()->isVisible());
        m_driver->choose("nitrateData");
        QVERIFY(box()->isVisible());
        m_driver->click("freshwaterButton");
        QVERIFY(!box()->isVisible());
        m_driver->pressIn("deviationField", Qt::Key_Up);
        QVERIFY(box()->isVisible());
    }

    /// A default target shows no advice in fresh water. Marine nitrite has its own threshold and reason.
    void thresholdsSuitDefaultsAndWater()
    {
        for (const char *language : {"en", "en_US", "de"}) {
            setTextLanguages({QString::fromLatin1(language)});
            const Tank tank(QStringLiteral("Tank"));
            for (const HighValueAdvice &advice : highValueAdvices()) {
                const TankData &target = *tank.target(advice.parameter);
                QVERIFY(!isHighValue(advice.parameter, true, double(targetBand(target).high)));
                QVERIFY(targetBand(target).high > 0);
            }
            for (const TankData *target : {tank.ammoniaData(), tank.nitriteData()})
                QVERIFY(targetBand(*target).high <= 0.1F); // common tests begin at 0.25
            QVERIFY(*highValueThreshold(Parameter::Nitrite, false) >= *highValueThreshold(Parameter::Nitrite, true));
        }
        setTextLanguages({QStringLiteral("en")});
        m_driver->open(m_driver->tank().nitriteData()->name);
        m_driver->type("preferredField", QStringLiteral("5"));
        const auto reason = [this] { return box()->findChild<QLabel *>("warningReason")->text(); };
        QVERIFY(reason().contains(QStringLiteral("blood")));
        m_driver->click("marineButton");
        QVERIFY(box()->isVisible() && !reason().contains(QStringLiteral("blood")));
    }

    // ---- closing

    void closing_data()
    {
        // edited: "" nothing, "half" without leaving the field, "stepped"
        // end: a button, or "" for Escape
        // stored: in an iron target of 1
        test::columns<bool, QString, QString, int, float>("isNew", "edited", "end", "changes", "stored");
        row("OK", false, "", "okButton", 1, 1.0F);
        row("OK stores a half-typed number", false, "half", "okButton", 1, 5.0F);
        row("Return", false, "half", "return", 1, 5.0F);
        row("Escape stores what was changed", false, "half", "", 1, 5.0F);
        row("new, OK", true, "half", "okButton", 1, 5.0F);
        row("new, cancel", true, "stepped", "cancelButton", 0, 1.0F);
        row("new, Escape", true, "half", "", 0, 1.0F);
    }
    void closing()
    {
        const auto [isNew, edited, end] = test::fetch<bool, QString, QString>("isNew", "edited", "end");
        TankData &before = *m_driver->tank().ironData();
        before.preferredValue = 1;
        if (isNew)
            m_driver->open(nullptr, true, QStringLiteral("Iron"));
        else
            m_driver->open(QStringLiteral("Iron"));
        QCOMPARE(m_driver->control<>("cancelButton")->isVisible(), isNew);
        QCOMPARE(m_driver->control<QLineEdit>("nameField")->text(),
                 isNew ? text("NewTankName") : m_driver->tank().name);
        m_driver->control<QLineEdit>("nameField")->setText(QStringLiteral("Nano"));
        m_driver->click("marineButton");
        QWidget *field = m_driver->control<>("preferredField");
        m_driver->focus(field);
        if (edited == "stepped")
            m_driver->press(Qt::Key_Up);
        else if (edited == "half")
            QTest::keyClicks(field, QStringLiteral("5"));
        if (end.isEmpty())
            m_driver->press(Qt::Key_Escape);
        else if (end == "return")
            m_driver->press(Qt::Key_Return);
        else
            m_driver->click(end.toLatin1());
        QCoreApplication::processEvents(); // a late focus change must not store anything
        QVERIFY(!m_driver->isUp());
        const bool confirmed = end == "okButton" || end == "return" || (end.isEmpty() && !isNew);
        QTEST(m_driver->shell.changes, "changes");
        QCOMPARE(m_driver->shell.ordersFront, 1);
        QCOMPARE(m_driver->shell.tanks.count(), isNew && confirmed ? 2 : 1);
        QTEST(m_driver->tank().ironData()->preferredValue, "stored");
        QCOMPARE(m_driver->tank().name, confirmed ? QStringLiteral("Nano") : QStringLiteral("Cube"));
        QCOMPARE(m_driver->tank().freshwater, !confirmed);
        if (isNew)
            QCOMPARE(before.preferredValue, 1.0F);
    }

    void aTankHasAName()
    {
        m_driver->open();
        for (const char *name : {"", "  "}) {
            m_driver->control<QLineEdit>("nameField")->setText(QLatin1String(name));
            m_driver->click("okButton");
            QVERIFY(m_driver->isUp() && m_driver->control<QLineEdit>("nameField")->hasFocus());
        }
        m_driver->press(Qt::Key_Escape);
        QVERIFY(m_driver->isUp());
        m_driver->control<QLineEdit>("nameField")->setText(QStringLiteral("Cube"));
        m_driver->press(Qt::Key_Escape);
        QVERIFY(!m_driver->isUp());
        QCOMPARE(m_driver->shell.changes, 0);
    }

    void oneSheetAtATime()
    {
        m_driver->open();
        m_driver->open(nullptr, true, {});
        QCOMPARE(m_driver->control<QLineEdit>("nameField")->text(), m_driver->tank().name);
        m_driver->click("okButton");
        QCOMPARE(m_driver->shell.tanks.count(), 1);
    }

    void help()
    {
        m_driver->open();
        m_driver->click("helpButton");
        QCOMPARE(HelpWindow::sharedInstance().findChild<QTextBrowser *>("helpBrowser")->source(),
                 helpbook::urlOfAnchor(QStringLiteral("conditions")));
        QVERIFY(m_driver->sheet()->isVisible());
    }

private:
    [[nodiscard]] QWidget *box() const { return m_driver->control<>("warningBox"); }

    std::unique_ptr<test::TankSheetDriver> m_driver;
};

BRINEMARK_TEST(QApplication, TestTargetEditor)
#include "tst_target_editor.moc"
