// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/TankSheetDriver.h"
#include "chemistry/views/CheckedLineEdit.h"
#include "support/DataRow.h"
#include "support/TestProgram.h"
#include "ui/Stepper.h"

#include <QCheckBox>
#include <QClipboard>

using namespace brinemark;
using brinemark::test::local;
using brinemark::test::row;

class TestTargetInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = std::make_unique<test::TankSheetDriver>(); }
    void cleanup() { m_driver.reset(); }

    // ---- one parameter

    void inputs_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("deviationStep");
        QTest::addColumn<double>("deviationMaximum");
        QTest::addColumn<int>("decimals");
        row("alkalinityData", 1, 0.1, 600.0, 0.1, 600.0, 1);
        row("ammoniaData", 2, 0.1, 99.0, 0.1, 5.0, 2);
        row("calciumData", 3, 1.0, 999.0, 1.0, 100.0, 0);
        row("copperData", 4, 0.01, 99.0, 0.01, 9.0, 2);
        row("ironData", 5, 0.1, 99.0, 0.1, 10.0, 1);
        row("gHData", 6, 0.5, 999.0, 0.5, 20.0, 2);
        row("iodineData", 7, 0.01, 99.0, 0.01, 9.0, 2);
        row("kHData", 8, 0.5, 600.0, 0.5, 20.0, 2);
        row("nitrateData", 9, 1.0, 600.0, 1.0, 50.0, 2);
        row("nitriteData", 10, 0.1, 300.0, 0.1, 20.0, 2);
        row("oxygenData", 11, 0.2, 99.0, 0.2, 10.0, 1);
        row("phData", 12, 0.2, 99.0, 0.2, 10.0, 2);
        row("phosphateData", 13, 0.01, 99.0, 0.01, 10.0, 2);
        row("saltData", 14, 0.001, 10.0, 0.001, 10.0, 3);
        row("tempData", 15, 1.0, 150.0, 0.5, 10.0, 1);
        row("dioxideData", 16, 1.0, 99.0, 1.0, 99.0, 0);
        row("magnesiumData", 17, 10.0, 2500.0, 10.0, 400.0, 0);
    }
    /// Steps both numbers once up, and to and beyond their ends, as the arrows and the keys do.
    void inputs()
    {
        QFETCH(int, tag);
        QFETCH(int, decimals);
        TankData &target = *m_driver->tank().targetForKey(QString::fromLatin1(QTest::currentDataTag()));
        target.preferredValue = target.deviationValue = 0;
        target.warningOn = target.deviationOn = true;
        m_driver->open();
        QCOMPARE(m_driver->control<QComboBox>("warningPopup")->count(), 17);
        m_driver->choose(QTest::currentDataTag());
        QCOMPARE(m_driver->control<QComboBox>("warningPopup")->currentData(test::TankSheetDriver::tagRole).toInt(),
                 tag);
        const auto check = [&](const char *name, double step, double maximum, const float &stored) {
            Stepper &stepper = *m_driver->control<Stepper>(QByteArray(name) + "Stepper");
            CheckedLineEdit &field = *m_driver->control<CheckedLineEdit>(QByteArray(name) + "Field");
            QLocale locale;
            locale.setNumberOptions(QLocale::OmitGroupSeparator);
            const auto shown = [&](double value) { return locale.toString(value, 'f', decimals); };
            QCOMPARE(field.text(), shown(0));
            QCOMPARE(field.formatter().getMax(), maximum);
            stepper.findChild<QAbstractButton *>("upButton")->click();
            QCOMPARE(field.text(), shown(step));
            QCOMPARE(stored, float(step));
            QTest::keyClick(&field, Qt::Key_Up);
            QCOMPARE(stored, float(2 * step));
            QTest::keyClick(&stepper, Qt::Key_End);
            QTest::keyClick(&field, Qt::Key_Up);
            QCOMPARE(field.text(), shown(maximum));
            QCOMPARE(stored, float(maximum));
            QTest::keyClick(&stepper, Qt::Key_Home);
            QTest::keyClick(&field, Qt::Key_Down);
            QCOMPARE(stored, 0.0F);
        };
        QFETCH(double, step);
        QFETCH(double, maximum);
        check("preferred", step, maximum, target.preferredValue);
        QFETCH(double, deviationStep);
        QFETCH(double, deviationMaximum);
        check("deviation", deviationStep, deviationMaximum, target.deviationValue);
    }

    void typing_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("typed"); ///< "," stands for the locale's separator
        QTest::addColumn<QString>("shown");
        QTest::addColumn<float>("stored");
        QTest::addColumn<int>("beeps");
        row("fraction", "ammoniaData", "0,5", "0,50", 0.5F, 0);
        row("rounded", "ammoniaData", "0,126", "0,13", 0.13F, 0);
        row("rounded to one decimal", "tempData", "24,25", "24,3", 24.3F, 0);
        row("three decimals", "saltData", "1,0256", "1,026", 1.026F, 0);
        row("beyond the maximum", "ammoniaData", "150", "15,00", 15.0F, 1);
        row("no decimals", "magnesiumData", "1300,5", "1300", 1300.0F, 2); // nor 13005
        row("letters", "ammoniaData", "1x", "1,00", 1.0F, 1);
        row("below zero", "ammoniaData", "-1", "1,00", 1.0F, 1);
        row("nothing", "ammoniaData", "", "0,00", 0.0F, 0);
    }
    void typing()
    {
        QFETCH(QString, key);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        m_driver->open();
        m_driver->choose(key);
        m_driver->type("preferredField", local(typed));
        QCOMPARE(m_driver->control<CheckedLineEdit>("preferredField")->text(), local(shown));
        QTEST(m_driver->tank().targetForKey(key)->preferredValue, "stored");
        QTEST(m_driver->beeps, "beeps");
        QCOMPARE(m_driver->control<Stepper>("preferredStepper")->value(),
                 double(qRound(localNumber(shown) * 1000)) / 1000);
    }

    void arrowsBeginWhereTypingEnded_data()
    {
        QTest::addColumn<bool>("pasted");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("arrow");
        QTest::addColumn<float>("stored");
        row("typed", false, "3,25", "upButton", 3.35F);
        row("pasted", true, "3,25", "downButton", 3.15F);
        row("pasted beyond the maximum", true, "150", "downButton", 4.9F);
        row("cleared", false, "", "upButton", 0.1F);
    }
    /// An arrow does not take the focus, so that nothing has ended the typing when it is pressed.
    void arrowsBeginWhereTypingEnded()
    {
        QFETCH(bool, pasted);
        QFETCH(QString, entered);
        QFETCH(QString, arrow);
        TankData &ammonia = *m_driver->tank().ammoniaData();
        m_driver->open(ammonia.name);
        auto *field = m_driver->control<QLineEdit>("deviationField");
        m_driver->focus(field);
        field->selectAll();
        m_driver->press(Qt::Key_Backspace);
        QApplication::clipboard()->setText(local(entered));
        if (pasted)
            QTest::keySequence(field, QKeySequence::Paste);
        else
            QTest::keyClicks(field, local(entered));
        QTest::mouseClick(m_driver->control<>("deviationStepper")->findChild<QWidget *>(arrow), Qt::LeftButton);
        QTEST(ammonia.deviationValue, "stored");
        QVERIFY(field->hasFocus());
    }

    /// What a file holds beyond the field's decimals and maximum is not the sheet's to cut.
    void untouchedNumbersStay()
    {
        TankData &ammonia = *m_driver->tank().ammoniaData();
        ammonia.preferredValue = 16.000003F; // eight digits tell it from 16
        ammonia.deviationValue = 140;
        m_driver->open();
        m_driver->choose("ammoniaData");
        QCOMPARE(m_driver->control<CheckedLineEdit>("preferredField")->text(), local("16,00"));
        m_driver->focus(m_driver->control<>("preferredField"));
        m_driver->press(Qt::Key_Tab);
        m_driver->choose("phData");
        m_driver->choose("ammoniaData");
        m_driver->click("okButton");
        QVERIFY(ammonia.preferredValue == 16.000003F);
        QVERIFY(ammonia.deviationValue == 140);
    }

    void enabling_data()
    {
        QTest::addColumn<bool>("warning");
        QTest::addColumn<bool>("deviation");
        row("neither", false, false);
        row("a band that is not used", false, true);
        row("the value itself", true, false);
        row("the band", true, true);
    }
    void enabling()
    {
        QFETCH(bool, warning);
        QFETCH(bool, deviation);
        TankData &ph = *m_driver->tank().phData();
        ph.warningOn = warning;
        ph.deviationOn = deviation;
        const auto check = [&] {
            QCOMPARE(m_driver->control<QCheckBox>("warningCheckbox")->isChecked(), ph.warningOn);
            QCOMPARE(m_driver->control<QCheckBox>("deviationCheckbox")->isChecked(), ph.deviationOn);
            QVERIFY(m_driver->control<>("preferredField")->isEnabled());
            QCOMPARE(m_driver->control<>("deviationCheckbox")->isEnabled(), ph.warningOn);
            QCOMPARE(m_driver->control<>("deviationField")->isEnabled(), ph.warningOn && ph.deviationOn);
            QCOMPARE(m_driver->control<>("deviationStepper")->isEnabled(), ph.warningOn && ph.deviationOn);
        };
        m_driver->open();
        m_driver->choose("phData");
        check();
        m_driver->click("warningCheckbox");
        QCOMPARE(ph.warningOn, !warning);
        check();
        m_driver->click("warningCheckbox");
        if (warning) {
            m_driver->click("deviationCheckbox");
            QCOMPARE(ph.deviationOn, !deviation);
            check();
        }
        QVERIFY(!m_driver->control<>("deviationField")->isEnabled() || ph.deviationOn);
    }

    void targetThatTheTankLacks()
    {
        m_driver->open();
        auto *popup = m_driver->control<QComboBox>("warningPopup");
        popup->addItem(QStringLiteral("Colour"), 0);
        popup->setItemData(popup->count() - 1, QStringLiteral("colourData"), test::TankSheetDriver::keyRole);
        m_driver->choose("ammoniaData"); // warns
        m_driver->choose("colourData");
        QVERIFY(!m_driver->control<QCheckBox>("warningCheckbox")->isChecked());
        QVERIFY(!m_driver->control<>("warningCheckbox")->isEnabled());
        QVERIFY(!m_driver->control<>("preferredField")->isEnabled());
        QVERIFY(!m_driver->control<>("deviationField")->isEnabled());
        m_driver->click("okButton");
        QCOMPARE(m_driver->shell.changes, 1);
    }

    // ---- the chooser

    void titles_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("focus");
        row("of a target", "pH", "phData", "preferredField");
        row("renamed in the file", "Zink & Kupfer", "copperData", "preferredField");
        row("without a name in the file", "Iron", "ironData", "preferredField");
        row("unknown", "Colour", "alkalinityData", "nameField");
        row("other case", "PH", "alkalinityData", "nameField");
        row("none", "", "alkalinityData", "nameField");
    }
    void titles()
    {
        QFETCH(QString, title);
        m_driver->tank().copperData()->name = QStringLiteral("Zink & Kupfer");
        m_driver->tank().ironData()->name.clear();
        m_driver->open(title);
        auto *popup = m_driver->control<QComboBox>("warningPopup");
        QTEST(popup->currentData(test::TankSheetDriver::keyRole).toString(), "key");
        QTEST(QApplication::focusWidget()->objectName(), "focus");
        QStringList shown;
        for (int i = 0; i < popup->count(); ++i)
            shown << popup->itemText(i);
        QStringList sorted = shown;
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
        QCOMPARE(shown, sorted);
        const QString named = popup->currentText().replace(QLatin1Char('&'), QLatin1String("&&"));
        QCOMPARE(m_driver->control<QCheckBox>("warningCheckbox")->text(),
                 fillPlaceholders(text("DisplayWarningCheckboxLabel"), {named}));
    }

private:
    [[nodiscard]] static double localNumber(QString number)
    {
        return number.replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    }

    std::unique_ptr<test::TankSheetDriver> m_driver;
};

BRINEMARK_TEST(QApplication, TestTargetInput)
#include "tst_target_input.moc"
