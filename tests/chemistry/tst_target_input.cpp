// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/TankSheetDriver.h"
#include "support/TestProgram.h"
#include "ui/CheckedLineEdit.h"
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
        test::columns<int, double, double, double, double, int>("tag", "step", "maximum", "deviationStep",
                                                                "deviationMaximum", "decimals");
        row("ammoniaData", 2, 0.1, 99.0, 0.1, 5.0, 2);
        row("tempData", 15, 1.0, 150.0, 0.5, 10.0, 1);
        row("saltData", 14, 0.001, 10.0, 0.001, 10.0, 3);
        row("magnesiumData", 17, 10.0, 2500.0, 10.0, 400.0, 0);
    }
    /// Steps both numbers up once, to their ends and beyond, by arrows and keys.
    void inputs()
    {
        QFETCH(int, tag);
        QFETCH(int, decimals);
        TankData &target = *m_driver->tank().targetForKey(QString::fromLatin1(QTest::currentDataTag()));
        target.preferredValue = target.deviationValue = 0;
        target.warningOn = target.deviationOn = true;
        m_driver->open();
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
            QTest::keyClick(&stepper, Qt::Key_End);
            QTest::keyClick(&field, Qt::Key_Up);
            QCOMPARE(field.text(), shown(maximum));
            QCOMPARE(stored, float(maximum));
            QTest::keyClick(&stepper, Qt::Key_Home);
            QTest::keyClick(&field, Qt::Key_Down);
            QCOMPARE(stored, 0.0F);
        };
        const auto [step, maximum] = test::fetch<double, double>("step", "maximum");
        check("preferred", step, maximum, target.preferredValue);
        const auto [deviationStep, deviationMaximum] = test::fetch<double, double>("deviationStep", "deviationMaximum");
        check("deviation", deviationStep, deviationMaximum, target.deviationValue);
    }
    void arrowsBeginWhereTypingEnded_data()
    {
        test::columns<bool, QString, QString, float>("pasted", "entered", "arrow", "stored");
        row("typed", false, "3,25", "upButton", 3.35F);
        row("pasted", true, "3,25", "downButton", 3.15F);
        row("pasted beyond the maximum", true, "150", "downButton", 4.9F);
        row("cleared", false, "", "upButton", 0.1F);
    }
    /// A click on an arrow leaves the focus in the field, so the typed text is not finished yet.
    void arrowsBeginWhereTypingEnded()
    {
        const auto [pasted, entered, arrow] = test::fetch<bool, QString, QString>("pasted", "entered", "arrow");
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

    /// The sheet does not cut an unedited number to the field's decimals and maximum.
    void untouchedNumbersStay()
    {
        TankData &ammonia = *m_driver->tank().ammoniaData();
        ammonia.preferredValue = 16.000003F; // differs from 16 in the eighth digit
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
        test::columns<bool, bool>("warning", "deviation");
        row("neither", false, false);
        row("a band that is not used", false, true);
        row("the value itself", true, false);
        row("the band", true, true);
    }
    void enabling()
    {
        const auto [warning, deviation] = test::fetch<bool, bool>("warning", "deviation");
        TankData &ph = *m_driver->tank().phData();
        ph.warningOn = warning;
        ph.deviationOn = deviation;
        const auto check = [&] {
            QCOMPARE(m_driver->control<QCheckBox>("warningCheckbox")->isChecked(), ph.warningOn);
            QCOMPARE(m_driver->control<QCheckBox>("deviationCheckbox")->isChecked(), ph.deviationOn);
            QVERIFY(m_driver->control<>("preferredField")->isEnabled());
            QCOMPARE(m_driver->control<>("deviationCheckbox")->isEnabled(), ph.warningOn);
            for (const char *name : {"deviationField", "deviationStepper"})
                QCOMPARE(m_driver->control<>(name)->isEnabled(), ph.warningOn && ph.deviationOn);
        };
        m_driver->open();
        m_driver->choose("phData");
        check();
        m_driver->click("warningCheckbox");
        QCOMPARE(ph.warningOn, !warning);
        check();
        if (!warning) {
            m_driver->click("deviationCheckbox");
            QCOMPARE(ph.deviationOn, !deviation);
            check();
        }
    }

    void targetThatTheTankLacks()
    {
        m_driver->open();
        auto *popup = m_driver->control<QComboBox>("warningPopup");
        popup->addItem(QStringLiteral("Colour"), 0);
        popup->setItemData(popup->count() - 1, QStringLiteral("colourData"), test::TankSheetDriver::keyRole);
        m_driver->choose("ammoniaData"); // a target that warns
        m_driver->choose("colourData");
        QVERIFY(!m_driver->control<QCheckBox>("warningCheckbox")->isChecked());
        for (const char *name : {"warningCheckbox", "preferredField", "deviationField"})
            QVERIFY(!m_driver->control<>(name)->isEnabled());
        m_driver->click("okButton");
        QCOMPARE(m_driver->shell.changes, 1);
    }

    // ---- the chooser

    void titles_data()
    {
        test::columns<QString, QString, QString>("title", "key", "focus");
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
        QVERIFY(std::is_sorted(shown.begin(), shown.end(), [](const QString &a, const QString &b) {
            return a.compare(b, Qt::CaseInsensitive) < 0;
        }));
        const QString named = popup->currentText().replace(QLatin1Char('&'), QLatin1String("&&"));
        QCOMPARE(m_driver->control<QCheckBox>("warningCheckbox")->text(),
                 fillPlaceholders(text("DisplayWarningCheckboxLabel"), {named}));
    }

private:
    std::unique_ptr<test::TankSheetDriver> m_driver;
};

BRINEMARK_TEST(QApplication, TestTargetInput)
#include "tst_target_input.moc"
