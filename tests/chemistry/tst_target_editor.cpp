#include "base/text/NumberText.h"
#include "chemistry/HighValue.h"
#include "chemistry/views/CheckedLineEdit.h"
#include "chemistry/views/TankDataController.h"
#include "chemistry/views/TankDataEntryController.h"
#include "support/DataRow.h"
#include "support/RecordingShell.h"
#include "support/RunTest.h"
#include "ui/Alerts.h"
#include "ui/HelpWindow.h"
#include "ui/Stepper.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTextBrowser>

using namespace brinemark;
using brinemark::test::row;

namespace
{

constexpr int tagRole = Qt::UserRole;
constexpr int keyRole = Qt::UserRole + 1;

} // namespace

class TestTargetEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        m_shell->appendTank(std::make_shared<Tank>(QStringLiteral("Cube")));
        m_shell->window.resize(800, 700); // room below the targets
        m_shell->window.show();
        m_beeps = 0;
        m_beepBefore = setBeepHandler([this] { ++m_beeps; });
    }
    void cleanup()
    {
        setBeepHandler(m_beepBefore);
        closeHelp();
        TankDataController::destroyShared();
        TankDataEntryController::destroyShared();
        m_shell.reset();
    }

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
        TankData &target = *tank().targetForKey(QString::fromLatin1(QTest::currentDataTag()));
        target.preferredValue = target.deviationValue = 0;
        target.warningOn = target.deviationOn = true;
        open();
        QCOMPARE(control<QComboBox>("warningPopup")->count(), 17);
        choose(QTest::currentDataTag());
        QCOMPARE(control<QComboBox>("warningPopup")->currentData(tagRole).toInt(), tag);
        const auto check = [&](const char *name, double step, double maximum, const float &stored) {
            Stepper &stepper = *control<Stepper>(QByteArray(name) + "Stepper");
            CheckedLineEdit &field = *control<CheckedLineEdit>(QByteArray(name) + "Field");
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
        open();
        choose(key);
        type("preferredField", local(typed));
        QCOMPARE(control<CheckedLineEdit>("preferredField")->text(), local(shown));
        QTEST(tank().targetForKey(key)->preferredValue, "stored");
        QTEST(m_beeps, "beeps");
        QCOMPARE(control<Stepper>("preferredStepper")->value(), double(qRound(localNumber(shown) * 1000)) / 1000);
    }

    void pastedBeyondTheMaximum()
    {
        open();
        choose("ammoniaData");
        auto *field = control<CheckedLineEdit>("deviationField");
        focus(field);
        QApplication::clipboard()->setText(QStringLiteral("150"));
        field->selectAll();
        field->paste();
        press(Qt::Key_Tab);
        QCOMPARE(field->text(), local("5,00"));
        QCOMPARE(tank().ammoniaData()->deviationValue, 5.0F);
    }

    void steppingBeginsWhereTypingEnded()
    {
        open();
        choose("phData");
        auto *field = control<CheckedLineEdit>("preferredField");
        focus(field);
        field->selectAll();
        QTest::keyClicks(field, local("7,25"));
        press(Qt::Key_Up);
        QCOMPARE(field->text(), local("7,45"));
        press(Qt::Key_PageDown);
        QCOMPARE(field->text(), local("5,45"));
        QCOMPARE(tank().phData()->preferredValue, 5.45F);
    }

    /// What a file holds beyond the field's decimals and maximum is not the sheet's to cut.
    void untouchedNumbersStay()
    {
        TankData &ammonia = *tank().ammoniaData();
        ammonia.preferredValue = 0.0123456F;
        ammonia.deviationValue = 140;
        open();
        choose("ammoniaData");
        QCOMPARE(control<CheckedLineEdit>("preferredField")->text(), local("0,01"));
        focus(control<QWidget>("preferredField"));
        press(Qt::Key_Tab);
        choose("phData");
        choose("ammoniaData");
        click("okButton");
        QCOMPARE(ammonia.preferredValue, 0.0123456F);
        QCOMPARE(ammonia.deviationValue, 140.0F);
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
        TankData &ph = *tank().phData();
        ph.warningOn = warning;
        ph.deviationOn = deviation;
        const auto check = [&] {
            QCOMPARE(control<QCheckBox>("warningCheckbox")->isChecked(), ph.warningOn);
            QCOMPARE(control<QCheckBox>("deviationCheckbox")->isChecked(), ph.deviationOn);
            QVERIFY(control<QWidget>("preferredField")->isEnabled());
            QCOMPARE(control<QWidget>("deviationCheckbox")->isEnabled(), ph.warningOn);
            QCOMPARE(control<QWidget>("deviationField")->isEnabled(), ph.warningOn && ph.deviationOn);
            QCOMPARE(control<QWidget>("deviationStepper")->isEnabled(), ph.warningOn && ph.deviationOn);
        };
        open();
        choose("phData");
        check();
        click("warningCheckbox");
        QCOMPARE(ph.warningOn, !warning);
        check();
        click("warningCheckbox");
        if (warning) {
            click("deviationCheckbox");
            QCOMPARE(ph.deviationOn, !deviation);
            check();
        }
        QVERIFY(!control<QWidget>("deviationField")->isEnabled() || ph.deviationOn);
    }

    void targetThatTheTankLacks()
    {
        open();
        auto *popup = control<QComboBox>("warningPopup");
        popup->addItem(QStringLiteral("Colour"), 0);
        popup->setItemData(popup->count() - 1, QStringLiteral("colourData"), keyRole);
        choose("ammoniaData"); // warns
        choose("colourData");
        QVERIFY(!control<QCheckBox>("warningCheckbox")->isChecked());
        QVERIFY(!control<QWidget>("warningCheckbox")->isEnabled());
        QVERIFY(!control<QWidget>("preferredField")->isEnabled());
        QVERIFY(!control<QWidget>("deviationField")->isEnabled());
        click("okButton");
        QCOMPARE(m_shell->changes, 1);
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
        tank().copperData()->name = QStringLiteral("Zink & Kupfer");
        tank().ironData()->name.clear();
        open(title);
        auto *popup = control<QComboBox>("warningPopup");
        QTEST(popup->currentData(keyRole).toString(), "key");
        QTEST(QApplication::focusWidget()->objectName(), "focus");
        QStringList shown;
        for (int i = 0; i < popup->count(); ++i)
            shown << popup->itemText(i);
        QStringList sorted = shown;
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
        QCOMPARE(shown, sorted);
        const QString named = popup->currentText().replace(QLatin1Char('&'), QLatin1String("&&"));
        QCOMPARE(control<QCheckBox>("warningCheckbox")->text(),
                 fillPlaceholders(text("DisplayWarningCheckboxLabel"), {named}));
    }

    // ---- the advice

    void highValues_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("freshwater");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("deviation"); ///< empty for none in use
        QTest::addColumn<bool>("high");
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
                add("with a band below", limit(threshold, -0.03), "0.02", false);
                add("with a band to the threshold", limit(threshold, -0.03), "0.03", false);
                add("with a band above", limit(threshold, -0.03), "0.04", true);
            }
        }
        row("no threshold", "phosphateData", true, "90", "9", false);
    }
    void highValues()
    {
        QFETCH(QString, key);
        QFETCH(bool, freshwater);
        QFETCH(QString, typed);
        QFETCH(QString, deviation);
        QFETCH(bool, high);
        TankData &target = *tank().targetForKey(key);
        target.warningOn = true;
        target.deviationOn = !deviation.isEmpty();
        target.deviationValue = 10; // does not count unless it is in use
        tank().freshwater = freshwater;
        open(target.name);
        const QSize size = sheet()->size();
        if (!deviation.isEmpty())
            type("deviationField", local(deviation));
        type("preferredField", local(typed));
        QCOMPARE(box()->isVisible(), high);
        if (high) {
            const double value = typed.toDouble() + deviation.toDouble();
            const QString title = box()->findChild<QLabel *>("warningTitle")->text();
            QVERIFY2(title.contains(shownNumber(value, 7)), qPrintable(title));
        }
        // The same from the file, in single precision.
        click("okButton");
        open(target.name);
        QCOMPARE(box()->isVisible(), high);
        QCOMPARE(sheet()->size(), size);
        if (high && deviation.isEmpty()) {
            type("preferredField", local(QString::number(*highValueThreshold(parameterOf(key), freshwater))));
            QVERIFY(!box()->isVisible());
        }
    }

    void adviceFollowsTheControls()
    {
        TankData &ammonia = *tank().ammoniaData(); // 0 ± the threshold of fresh water
        QVERIFY(ammonia.warningOn && ammonia.deviationOn);
        open(ammonia.name);
        QVERIFY(!box()->isVisible());
        click("marineButton");
        QVERIFY(box()->isVisible());
        const auto reason = [this] { return box()->findChild<QLabel *>("warningReason")->text(); };
        QVERIFY(reason().contains(shownNumber(numberOfText("AmmoniaSaltValue"), 7)));
        click("deviationCheckbox");
        QVERIFY(!box()->isVisible());
        click("deviationCheckbox");
        click("warningCheckbox"); // takes the band away as well
        QVERIFY(!box()->isVisible());
        click("warningCheckbox");
        QVERIFY(box()->isVisible());
        choose("phData");
        QVERIFY(!box()->isVisible());
        choose("ammoniaData");
        click("freshwaterButton");
        QVERIFY(!box()->isVisible());
        QTest::keyClick(control<QWidget>("deviationField"), Qt::Key_Up);
        QVERIFY(box()->isVisible());
        QTest::keyClick(control<QWidget>("deviationField"), Qt::Key_Down);
        QVERIFY(!box()->isVisible());
    }

    // ---- closing

    void closing_data()
    {
        QTest::addColumn<bool>("isNew");
        QTest::addColumn<QString>("edited"); ///< "" nothing, "half" without leaving the field, "stepped"
        QTest::addColumn<QString>("end");    ///< a button, or "" for Escape
        QTest::addColumn<int>("changes");
        QTest::addColumn<float>("stored"); ///< in an iron target of 1
        row("OK", false, "", "okButton", 1, 1.0F);
        row("OK takes what is being typed", false, "half", "okButton", 1, 5.0F);
        row("Return does as well", false, "half", "return", 1, 5.0F);
        row("Escape leaves nothing to count", false, "", "", 0, 1.0F);
        row("Escape drops what is being typed", false, "half", "", 0, 1.0F);
        row("Escape counts targets that changed", false, "stepped", "", 1, 1.1F);
        row("new, OK", true, "half", "okButton", 1, 5.0F);
        row("new, cancel", true, "stepped", "cancelButton", 0, 1.0F);
        row("new, Escape", true, "stepped", "", 0, 1.0F);
    }
    void closing()
    {
        QFETCH(bool, isNew);
        QFETCH(QString, edited);
        QFETCH(QString, end);
        TankData &before = *tank().ironData();
        before.preferredValue = 1;
        if (isNew)
            openSheet(nullptr, true, QStringLiteral("Iron"));
        else
            open(QStringLiteral("Iron"));
        QCOMPARE(control<QWidget>("cancelButton")->isVisible(), isNew);
        QCOMPARE(control<QLineEdit>("nameField")->text(), isNew ? text("NewTankName") : tank().name);
        control<QLineEdit>("nameField")->setText(QStringLiteral("Nano"));
        click("marineButton");
        QWidget *field = control<QWidget>("preferredField");
        focus(field);
        if (edited == "stepped")
            press(Qt::Key_Up);
        else if (edited == "half")
            QTest::keyClicks(field, QStringLiteral("5"));
        if (end.isEmpty())
            press(Qt::Key_Escape);
        else if (end == "return")
            press(Qt::Key_Return);
        else
            click(end.toLatin1());
        QCoreApplication::processEvents(); // the field may lose the focus only now
        QVERIFY(!sheet()->isVisible());
        const bool confirmed = end == "okButton" || end == "return";
        QTEST(m_shell->changes, "changes");
        QCOMPARE(m_shell->ordersFront, 1);
        QCOMPARE(m_shell->tanks.count(), isNew && confirmed ? 2 : 1);
        QTEST(tank().ironData()->preferredValue, "stored");
        QCOMPARE(tank().name, confirmed ? QStringLiteral("Nano") : QStringLiteral("Cube"));
        QCOMPARE(tank().freshwater, !confirmed);
        if (isNew)
            QCOMPARE(before.preferredValue, 1.0F);
    }

    void oneSheetAtATime()
    {
        open();
        openSheet(nullptr, true, {});
        QCOMPARE(control<QLineEdit>("nameField")->text(), tank().name);
        click("okButton");
        QCOMPARE(m_shell->tanks.count(), 1);
    }

    void help()
    {
        open();
        click("helpButton");
        QCOMPARE(HelpWindow::sharedInstance().findChild<QTextBrowser *>("helpBrowser")->source(),
                 HelpWindow::urlOfAnchor(QStringLiteral("conditions")));
        QVERIFY(sheet()->isVisible());
    }

    // ---- the tank's view

    void viewOpensTheSheetAtARow()
    {
        QTableView &table = *showView();
        const auto rowOf = [&](const QString &name) {
            return table.model()
                ->match(table.model()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly)
                .value(0);
        };
        table.scrollTo(rowOf(QStringLiteral("Nitrate")));
        const QPoint nitrate = table.visualRect(rowOf(QStringLiteral("Nitrate"))).center();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, nitrate);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, nitrate);
        QVERIFY(sheet() && sheet()->isVisible());
        QCOMPARE(control<QComboBox>("warningPopup")->currentText(), QStringLiteral("Nitrate"));
        QTest::keyClick(control<QWidget>("preferredField"), Qt::Key_Up);
        click("okButton");
        QCOMPARE(rowOf(QStringLiteral("Nitrate")).siblingAtColumn(1).data().toString(), local("1,0"));
        QCOMPARE(table.currentIndex().data().toString(), QStringLiteral("Nitrate")); // the row stays selected

        QTest::keyClick(&table, Qt::Key_Delete);
        QCOMPARE(m_shell->deletesAsked, 1);
        table.clearSelection();
        TankDataController::sharedInstance().view()->findChild<QPushButton *>("editButton")->click();
        QCOMPARE(control<QComboBox>("warningPopup")->currentText(), QStringLiteral("Alkalinity"));
        click("okButton");
        const QPoint below(20, table.viewport()->height() - 2);
        QVERIFY(!table.indexAt(below).isValid());
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, below);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, below);
        QVERIFY(!sheet()->isVisible());
    }

    void viewKeysGoAround()
    {
        showView();
        QWidget *view = TankDataController::sharedInstance().view();
        QStringList stops;
        QWidget *stop = m_shell->window.findChild<QWidget *>("tree");
        do {
            if (stop->focusPolicy() & Qt::TabFocus && stop->isVisibleTo(&m_shell->window))
                stops << stop->objectName();
            stop = stop->nextInFocusChain();
        } while (stop->objectName() != QLatin1String("tree"));
        stops.removeAll(QString());
        // The size is empty and no stop.
        QCOMPARE(stops, QStringList({"tree", "conditionTableView", "editButton", "help", "nameField", "typeField"}));
        QVERIFY(view->findChild<QLabel *>("nameField")->textInteractionFlags() & Qt::TextSelectableByMouse);
    }

    void viewWithoutATank()
    {
        m_shell->current = nullptr;
        showView();
        auto *add = TankDataController::sharedInstance().view()->findChild<QPushButton *>("emptyStateButton");
        QVERIFY(add->isVisible());
        add->click();
        QVERIFY(sheet() && sheet()->isVisible());
        click("okButton");
        QCOMPARE(m_shell->tanks.count(), 2);
        QVERIFY(!add->isVisible()); // the new tank's targets are there instead
    }

private:
    [[nodiscard]] Tank &tank() const { return *m_shell->current; }
    [[nodiscard]] QDialog *sheet() const { return m_shell->window.findChild<QDialog *>("tankSheet"); }
    [[nodiscard]] QWidget *box() const { return control<QWidget>("warningBox"); }
    template <class Widget>
    [[nodiscard]] Widget *control(const QByteArray &name) const
    {
        return sheet()->findChild<Widget *>(QString::fromLatin1(name));
    }

    /// A number written with a comma or a full stop, as a person of this locale types it.
    [[nodiscard]] static QString local(QString number)
    {
        const QString point = QLocale().decimalPoint();
        return number.replace(QLatin1Char('.'), QLatin1Char(',')).replace(QLatin1Char(','), point);
    }
    [[nodiscard]] static double localNumber(QString number)
    {
        return number.replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    }
    [[nodiscard]] static Parameter parameterOf(const QString &key) { return *parameterFromTargetKey(key); }

    void openSheet(std::shared_ptr<Tank> tank, bool withCancel, const QString &title)
    {
        TankDataEntryController::sharedInstance().displayTank(std::move(tank), withCancel, title);
        QVERIFY(sheet()->isVisible());
        QVERIFY(QTest::qWaitForWindowActive(sheet()));
    }
    void open(const QString &title = {}) { openSheet(tank().shared_from_this(), false, title); }
    void choose(const QString &key)
    {
        auto *popup = control<QComboBox>("warningPopup");
        popup->setCurrentIndex(popup->findData(key, keyRole));
    }
    void click(const char *name) { control<QAbstractButton>(name)->click(); }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    static void focus(QWidget *field)
    {
        field->setFocus(Qt::TabFocusReason);
        QVERIFY(field->hasFocus());
    }
    /// Types over what the field holds, and leaves it.
    void type(const char *name, const QString &typed)
    {
        auto *field = control<QLineEdit>(name);
        focus(field);
        field->selectAll();
        press(Qt::Key_Backspace);
        QTest::keyClicks(field, typed);
        press(Qt::Key_Tab);
    }

    /// The tank's view, between a tree and a help button.
    QTableView *showView()
    {
        auto *tree = new QLineEdit(&m_shell->window);
        tree->setObjectName(QStringLiteral("tree"));
        auto *help = new QPushButton(&m_shell->window);
        help->setObjectName(QStringLiteral("help"));
        auto &controller = TankDataController::sharedInstance();
        controller.view()->setParent(&m_shell->window);
        controller.view()->resize(m_shell->window.size());
        controller.view()->show();
        tree->show();
        help->show();
        controller.setKeyViewWithTankList(tree, help);
        QCoreApplication::processEvents(); // lays it out
        return controller.view()->findChild<QTableView *>("conditionTableView");
    }

    std::unique_ptr<test::RecordingShell> m_shell;
    std::function<void()> m_beepBefore;
    int m_beeps = 0;
};

int main(int argc, char **argv)
{
    return brinemark::test::run<QApplication, TestTargetEditor>(argc, argv);
}

#include "tst_target_editor.moc"
