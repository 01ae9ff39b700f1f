// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/DateText.h"
#include "chemistry/views/GraphController.h"
#include "chemistry/views/graph/ColourSwatch.h"
#include "chemistry/views/graph/LegendEntry.h"
#include "chemistry/views/graph/ScaleSlider.h"
#include "chemistry/views/graph/TestDateCombo.h"
#include "support/AlertDriver.h"
#include "support/Files.h"
#include "support/LocalNumber.h"
#include "support/RecordingShell.h"
#include "support/TestProgram.h"
#include "ui/Colours.h"
#include "ui/graph/TwoDGraphView.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QToolButton>

using namespace brinemark;

class TestGraphController : public QObject
{
    Q_OBJECT

    const QDateTime firstTest{QDate(2026, 3, 1), QTime(18, 30, 15)};

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        m_tank = std::make_shared<Tank>(QStringLiteral("Reef"));
        m_shell->appendTank(m_tank);
        m_tank->condition()->setColumnInfoArray({{"date", 0}, {"temp", 0}, {"kH", 0}, {"calcium", 0}, {"iron", 0}});
        m_shell->window.show();
    }
    void cleanup()
    {
        GraphController::destroyShared();
        m_shell.reset();
        m_tank.reset();
    }

    void form()
    {
        addTests(10);
        open();
        QVERIFY(!find<QWidget>("graphView")->isVisible());
        for (const char *name : {"startDateCombo", "endDateCombo"}) {
            const QAbstractItemModelTester tester(combo(name).model());
            QCOMPARE(combo(name).count(), 10);
        }
        QCOMPARE(combo("startDateCombo").currentIndex(), 0);
        QCOMPARE(combo("endDateCombo").currentIndex(), 9);
        QCOMPARE(combo("startDateCombo").date(), firstTest);
        press("cancelButton");
        QVERIFY(!m_window->isVisible());
        QCOMPARE(GraphController::sharedInstance().graphTank(), nullptr);
    }
    void nothingToChoose()
    {
        for (Tank *tank : {m_tank.get(), static_cast<Tank *>(nullptr)}) {
            m_shell->current = tank;
            m_shell->beeps = 0;
            open();
            expectRangeAlert([this] { press("drawButton"); });
            QVERIFY(!find<QWidget>("graphView")->isVisible());
            press("cancelButton");
        }
    }

    void draws()
    {
        addTests(11);
        test(0).kH = 8;
        test(10).kH = 10;
        test(5).calcium = 420;
        test(5).temp = 1000;
        open();
        press("drawButton");
        auto &controller = GraphController::sharedInstance();
        QVERIFY(view().isVisible());
        QVERIFY(!find<QWidget>("drawButton")->isVisible());
        QVERIFY(m_window->maximumWidth() > 4000); // can be resized
        QCOMPARE(controller.numberOfLinesInTwoDGraphView(view()), 3);
        const QList<QPointF> kH = controller.dataForLineIndex(view(), 0);
        QCOMPARE(kH.size(), 11);
        QCOMPARE(kH[5], QPointF(5, 9));
        QVERIFY(controller.dataForLineIndex(view(), 2).isEmpty());
        QCOMPARE(view().wholeRange(GraphAxis::Y), (GraphRange{0, 420}));
        QCOMPARE(view().wholeRange(GraphAxis::X), (GraphRange{0, 10}));
        QCOMPARE(controller.attributesForLineIndex(view(), 0).colour, find<ColourSwatch>("khView")->colour());
        QCOMPARE(controller.labelForTickMarkIndex(view(), 0, GraphAxis::X, QStringLiteral("2.5")), QStringLiteral("3"));
        QVERIFY(controller.stringForToolTip(view(), {5, 9}, 0).contains(QStringLiteral("KH: not tested on")));
        QVERIFY(!controller.stringForToolTip(view(), {5, 9}, 1).contains(QStringLiteral("KH")));

        // The small combos take over the range, to the second.
        QCOMPARE(combo("startDateComboSmall").date(), firstTest);
        combo("startDateComboSmall").setCurrentIndex(5);
        press("drawButtonSmall");
        QCOMPARE(controller.graphArray().size(), std::size_t(6));
        QCOMPARE(controller.graphArray().front().get(), &test(5));
        QVERIFY(view().isVisible());
    }

    void tickLabelsAreTrue()
    {
        addTests(31);
        test(0).kH = 8;
        open();
        press("drawButton");
        QCOMPARE(view().tickDigits(GraphAxis::X), 2); // days 0, 3 ... 30; 12 equal parts would be 2.5 days long
        const auto label = [this](GraphAxis axis) {
            return GraphController::sharedInstance().labelForTickMarkIndex(view(), 0, axis, QStringLiteral("10.26"));
        };
        QCOMPARE(label(GraphAxis::Y), test::local(QStringLiteral("10.3")));
        QCOMPARE(label(GraphAxis::X), QStringLiteral("11"));
        QVERIFY(view().paperHeading().subtitle.endsWith(localeDateText(firstTest.addDays(30))));
        for (int i = 0; i < 35; ++i)
            QTest::keyClick(&view(), Qt::Key_Plus);
        QVERIFY(view().tickDigits(GraphAxis::Y) > 3);
        const QString middle = localeDateText(firstTest.addDays(15));
        QVERIFY(view().paperHeading().subtitle.startsWith(middle) && view().paperHeading().subtitle.endsWith(middle));
        QCOMPARE(label(GraphAxis::Y), test::local(QStringLiteral("10.26")));
        QCOMPARE(label(GraphAxis::X), test::local(QStringLiteral("11.26"))); // part of a day fills the axis
    }

    void returnDraws()
    {
        addTests(3);
        test(0).kH = 8;
        for (int opening = 0; opening < 2; ++opening) {
            open();
            QVERIFY(!view().isVisible());
            QTest::keyClick(combo("startDateCombo").lineEdit(), Qt::Key_Return);
            QVERIFY(view().isVisible());
            combo("startDateComboSmall").setCurrentIndex(1);
            QTest::keyClick(&view(), Qt::Key_Return);
            QCOMPARE(GraphController::sharedInstance().graphArray().size(), std::size_t(2));
            press("closeButton");
        }
    }

    void newestFirst_data()
    {
        test::columns<bool, bool>("again", "byAlert");
        test::row("form", false, false);
        test::row("form, by the alert", false, true);
        test::row("graph", true, false);
        test::row("graph, by the alert", true, true);
    }
    void newestFirst()
    {
        const auto [again, byAlert] = test::fetch<bool, bool>("again", "byAlert");
        addTests(4);
        m_tank->condition()->sortWithIdentifier(QStringLiteral("date"), false);
        open();
        const char *draw = again ? "drawButtonSmall" : "drawButton";
        const char *swap = again ? "swapButtonSmall" : "swapButton";
        if (again) {
            QTest::mouseClick(find<QToolButton>("swapButton"), Qt::LeftButton);
            press("drawButton");
            QTest::mouseClick(find<QToolButton>(swap), Qt::LeftButton);
        }
        expectRangeAlert([&] { press(draw); }, byAlert ? "defaultButton" : "alternateButton");
        if (!byAlert) {
            QTest::mouseClick(find<QToolButton>(swap), Qt::LeftButton);
            press(draw);
        }
        // Includes the tests at both ends.
        QCOMPARE(GraphController::sharedInstance().graphArray().size(), std::size_t(4));
        QCOMPARE(combo("startDateComboSmall").date(), firstTest);

        combo("endDateComboSmall").setFocus();
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_window->focusWidget()->objectName(), QStringLiteral("swapButtonSmall"));
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_window->focusWidget()->objectName(), QStringLiteral("drawButtonSmall"));
    }

    void unusableRanges_data()
    {
        test::columns<QString, QString>("start", "end");
        test::row("no start", "", "09.03.26");
        test::row("no end", "02.03.26", "");
        test::row("no such day", "02.03.26", "31.04.26");
    }
    void unusableRanges()
    {
        const auto [start, end] = test::fetch<QString, QString>("start", "end");
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        addTests(11);
        test(3).kH = 8;
        open();
        type("startDateCombo", start);
        type("endDateCombo", end);
        expectRangeAlert([this] { press("drawButton"); });
        QVERIFY(find<QWidget>("drawButton")->isVisible()); // the form stays for a correction

        type("startDateCombo", QStringLiteral("2.3.26"));
        type("endDateCombo", QStringLiteral("9.3.2026"));
        press("drawButton");
        QVERIFY(!find<QLabel>("emptyStateSentence")->isVisible());
        QCOMPARE(GraphController::sharedInstance().graphArray().size(), std::size_t(8));

        // The same range from the small combos: the graph stays as it was drawn.
        m_shell->beeps = 0;
        type("startDateComboSmall", start);
        type("endDateComboSmall", end);
        expectRangeAlert([this] { press("drawButtonSmall"); });
        QCOMPARE(GraphController::sharedInstance().graphArray().size(), std::size_t(8));
        QVERIFY(view().isVisible());
        QVERIFY(find<QWidget>("printButton")->isEnabled());
        QLocale::setDefault(before);
    }

    // A chosen date is the moment of the test; the same text typed is that whole day, on either side.
    void chosenAndTyped()
    {
        addTests(3);
        open();
        TestDateCombo &start = combo("startDateCombo");
        start.setCurrentIndex(1);
        QCOMPARE(start.date(), firstTest.addDays(1));
        const QString shown = start.currentText();
        type("startDateCombo", shown);
        QTest::keyClick(start.lineEdit(), Qt::Key_Tab);
        QCOMPARE(start.date(), firstTest.date().addDays(1).startOfDay());
        Q_EMIT start.activated(1);
        QCOMPARE(start.date(), firstTest.addDays(1));
        TestDateCombo &end = combo("endDateCombo");
        end.setCurrentIndex(1);
        expectRangeAlert([this] { press("drawButton"); }); // one moment is no range

        for (const char *name : {"startDateCombo", "endDateCombo"}) {
            combo(name).setCurrentIndex(0); // so that the typed text is that of another row
            type(name, shown);
            Q_EMIT combo(name).lineEdit()->editingFinished();
        }
        QCOMPARE(end.date(), firstTest.date().addDays(1).endOfDay());
        QTest::mouseClick(find<QToolButton>("swapButton"), Qt::LeftButton);
        QCOMPARE(start.date(), firstTest.date().addDays(1).startOfDay());
        press("drawButton");
        QCOMPARE(GraphController::sharedInstance().graphArray().size(), std::size_t(1));
    }

    void legend()
    {
        m_tank->condition()->setColumnInfoArray(
            {{"ammonia", 0}, {"kH", 0}, {"copper", 0}, {"calcium", 0}, {"iron", 0}});
        addTests(3);
        test(0).kH = 8;
        test(1).calcium = 400;
        open();
        press("drawButton");
        // From top to bottom; those that were not tested stand at the end.
        QCOMPARE(shownBoxes(), QStringList({"khBox", "calciumBox", "ammoniaBox", "copperBox", "ironBox"}));
        QVERIFY(!find<QCheckBox>("ironBox")->isEnabled());
        auto *caption = find<QLabel>("notTestedCaption");
        QVERIFY(caption->geometry().top() > find<QCheckBox>("calciumBox")->parentWidget()->geometry().top());
        QVERIFY(caption->geometry().top() < find<QCheckBox>("ammoniaBox")->parentWidget()->geometry().top());
        QCOMPARE(find<QCheckBox>("ironBox")->parentWidget()->height(),
                 find<QCheckBox>("khBox")->parentWidget()->height());

        auto *calcium = find<QCheckBox>("calciumBox");
        QTest::mouseClick(calcium, Qt::LeftButton);
        QVERIFY(!view().isLineVisible(3));
        QVERIFY(view().isLineVisible(1));
        QVERIFY(!find<ColourSwatch>("calciumView")->isFilled());
        QTest::keyClick(calcium, Qt::Key_Space);
        QVERIFY(view().isLineVisible(3));
        QTest::mouseClick(find<ColourSwatch>("calciumView")->parentWidget(), Qt::LeftButton, {}, QPoint(2, 2));
        QVERIFY(!view().isLineVisible(3));
        press("drawButtonSmall"); // which shows every line again
        QVERIFY(view().isLineVisible(3));
        QVERIFY(find<QCheckBox>("calciumBox")->isChecked());

        for (int i = 0; i < 3; ++i)
            test(i).ammonia = test(i).copper = test(i).iron = 0;
        press("drawButtonSmall");
        QVERIFY(!find<QLabel>("notTestedCaption")->isVisible());
    }

    // A third of a filled swatch stands out from the window, and less than a quarter of a hidden line's.
    void swatches()
    {
        for (const QColor &window : {QColor("#2b2d30"), QColor("#efefef")}) {
            for (const Parameter parameter : {Parameter::Magnesium, Parameter::Salt, Parameter::Oxygen}) {
                ColourSwatch swatch(lineColour(parameter));
                swatch.setPalette(QPalette(window));
                for (const bool filled : {true, false}) {
                    swatch.setFilled(filled);
                    const QImage image = swatch.grab().toImage();
                    int standingOut = 0;
                    const int pixels = image.width() * image.height();
                    for (int i = 0; i < pixels; ++i)
                        standingOut += contrast(image.pixelColor(i % image.width(), i / image.width()), window) >= 2;
                    QVERIFY(filled ? standingOut * 3 > pixels : standingOut * 4 < pixels);
                }
            }
        }
    }

    void bands_data()
    {
        test::columns<bool, bool, bool>("warningOn", "deviationOn", "byFocus");
        QTest::newRow("band") << true << true << false;
        QTest::newRow("band, by focus") << true << true << true;
        QTest::newRow("value") << true << false << false;
        QTest::newRow("none") << false << true << false;
    }
    void bands()
    {
        const auto [warningOn, deviationOn, byFocus] =
            test::fetch<bool, bool, bool>("warningOn", "deviationOn", "byFocus");
        TankData &target = *m_tank->kHData();
        target.preferredValue = 10;
        target.deviationValue = 4;
        target.warningOn = warningOn;
        target.deviationOn = deviationOn;
        addTests(3);
        test(0).kH = 1;
        test(0).calcium = 2;
        open();
        press("drawButton");
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
        auto *box = find<QCheckBox>("khBox");
        QWidget *entry = box->parentWidget();
        QCOMPARE(entry->toolTip().contains(QStringLiteral("10") + QLocale().decimalPoint()), warningOn && !deviationOn);
        QCOMPARE(entry->toolTip().contains(QStringLiteral("14") + QLocale().decimalPoint()), warningOn && deviationOn);

        const auto colourAt = [this](double value) {
            QCoreApplication::processEvents(); // the view is painted in the event loop
            const QPoint place = view().positionOf({1.4, value}).toPoint();
            return view().grab().toImage().pixelColor(place * view().devicePixelRatio());
        };
        const QColor plain = colourAt(13);
        if (byFocus) {
            box->setFocus(Qt::TabFocusReason);
            m_window->activateWindow();
            QTRY_VERIFY(box->hasFocus());
        } else {
            point(entry, QEvent::Enter);
        }
        QCOMPARE(colourAt(13) != plain, warningOn && deviationOn);
        QCOMPARE(colourAt(17), plain);
        if (byFocus)
            find<QCheckBox>("calciumBox")->setFocus(Qt::TabFocusReason);
        else
            point(entry, QEvent::Leave);
        QCOMPARE(colourAt(13), plain);
    }

    void scale()
    {
        addTests(3);
        test(0).calcium = 400;
        open();
        press("drawButton");
        auto &controller = GraphController::sharedInstance();
        auto *slider = find<ScaleSlider>("scaleSlider");
        slider->setValue(slider->maximum() / 2);
        QCOMPARE(controller.maxYValue(), 200.0);
        QCOMPARE(view().wholeRange(GraphAxis::Y), (GraphRange{0, 200}));
        slider->setValue(slider->maximum());
        QCOMPARE(controller.maxYValue(), 0.1);
        QCOMPARE(view().wholeRange(GraphAxis::Y), (GraphRange{0, 0.1}));
        press("drawButtonSmall");
        QCOMPARE(slider->value(), 0);
        QCOMPARE(controller.maxYValue(), 400.0);
    }

    // Hiding the line with the highest values makes room for the others.
    void fitScale()
    {
        addTests(3);
        test(0).kH = 8.5F;
        test(1).calcium = 400;
        open();
        press("drawButton");
        const auto top = [this] { return view().wholeRange(GraphAxis::Y).max; };
        auto *fit = find<QCheckBox>("fitScaleBox");
        auto *kH = find<QCheckBox>("khBox");
        auto *calcium = find<QCheckBox>("calciumBox");
        auto *slider = find<ScaleSlider>("scaleSlider");
        QTest::mouseClick(calcium, Qt::LeftButton);
        QCOMPARE(top(), 400.0);
        QTest::mouseClick(fit, Qt::LeftButton);
        QCOMPARE(top(), 8.5);
        QCOMPARE(slider->maximumFloat(), 8.5F);
        QVERIFY(!view().isZoomed());
        slider->setValue(slider->maximum() / 2);
        QCOMPARE(top(), 4.25);
        QTest::mouseClick(calcium, Qt::LeftButton);
        QCOMPARE(top(), 400.0);
        QCOMPARE(slider->value(), 0);
        QTest::mouseClick(calcium, Qt::LeftButton);
        QCOMPARE(top(), 8.5);
        QTest::mouseClick(kH, Qt::LeftButton);
        QCOMPARE(top(), 400.0); // nothing is left to fit
        QTest::mouseClick(kH, Qt::LeftButton);
        press("drawButtonSmall"); // shows every line again, over the whole scale
        QVERIFY(!fit->isChecked());
        QCOMPARE(top(), 400.0);
        QTest::mouseClick(fit, Qt::LeftButton);
        QTest::mouseClick(fit, Qt::LeftButton);
        QCOMPARE(top(), 400.0);
    }

    void emptyGraphs_data()
    {
        test::columns<QStringList, bool, QString>("columns", "inRange", "sentence");
        QTest::newRow("no tests") << QStringList{"date", "kH"} << false << text("GraphNoTests");
        QTest::newRow("temperature only") << QStringList{"date", "temp"} << true << text("GraphNoLines");
        QTest::newRow("nothing tested") << QStringList{"date", "kH", "iron"} << true << text("GraphNothingTested");
    }
    void emptyGraphs()
    {
        const auto [columns, inRange] = test::fetch<QStringList, bool>("columns", "inRange");
        ColumnInfoArray layout;
        for (const QString &identifier : columns)
            layout.push_back({identifier, 0});
        m_tank->condition()->setColumnInfoArray(layout);
        addTests(3);
        test(1).temp = 25;
        open();
        if (!inRange) {
            type("startDateCombo", localeDateText(firstTest.addDays(20)));
            type("endDateCombo", localeDateText(firstTest.addDays(30)));
        }
        press("drawButton");
        QVERIFY(!view().isVisible());
        auto *sentence = find<QLabel>("emptyStateSentence");
        QVERIFY(sentence->isVisible());
        QTEST(sentence->text(), "sentence");
        QVERIFY(!find<QWidget>("saveButton")->isEnabled());
    }

    void saves_data()
    {
        test::columns<QString, QByteArray, QByteArray>("name", "written", "start");
        QTest::newRow("picture") << "reef.png" << QByteArray("reef.png") << QByteArray("\x89PNG");
        QTest::newRow("page") << "reef.PDF" << QByteArray("reef.PDF") << QByteArray("%PDF");
        QTest::newRow("no suffix") << "11.3. reef" << QByteArray("11.3. reef.png") << QByteArray("\x89PNG");
        QTest::newRow("nowhere") << "missing/reef.png" << QByteArray() << QByteArray();
    }
    void saves()
    {
        const auto [name, written] = test::fetch<QString, QByteArray>("name", "written");
        addTests(3);
        test(0).kH = 8;
        m_tank->name = QStringLiteral("Reef/2");
        open();
        press("drawButton");
        const QTemporaryDir folder;
        find<QToolButton>("saveButton")->click();
        auto *panel = m_window->findChild<QFileDialog *>(QStringLiteral("graphSavePanel"));
        QVERIFY(panel);
        QTRY_VERIFY(panel->isVisible());
        auto *field = panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        QVERIFY(field->text().startsWith(QStringLiteral("Graph Reef")));
        field->setText(folder.filePath(name));
        if (written.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Cannot write .*reef\\.png")));
        QMetaObject::invokeMethod(panel, "accept");
        if (written.isEmpty()) {
            QTRY_VERIFY(test::shownAlert());
            QCOMPARE(test::shownAlert()->title(), text("GraphSaveErrorTitle"));
            return;
        }
        QTRY_VERIFY(QFile::exists(folder.filePath(written)));
        QTEST(test::bytesOf(folder.filePath(written)).left(4), "start");
    }

    void prints()
    {
        addTests(3);
        test(0).kH = 8;
        open();
        press("drawButton");
        find<QToolButton>("printButton")->click();
        auto *dialog = m_window->findChild<QDialog *>(QStringLiteral("printDialog"));
        QVERIFY(dialog && dialog->isVisible());
        dialog->reject();
        QVERIFY(m_window->isVisible());
    }

    // The sheet keeps the tank of a file that is closed, until the sheet itself closes.
    void tankThatGoes()
    {
        addTests(3);
        test(0).kH = 8;
        open();
        press("drawButton");
        const std::weak_ptr<Tank> tank = m_tank;
        m_shell->current = nullptr;
        m_shell->tanks.clear();
        m_tank.reset();
        press("drawButtonSmall");
        QCOMPARE(GraphController::sharedInstance().dataForLineIndex(view(), 0).size(), 3);
        press("closeButton");
        QVERIFY(tank.expired());
    }

private:
    void addTests(int count)
    {
        for (int i = 0; i < count; ++i) {
            auto record = std::make_shared<ConditionData>(Blank{});
            record->date = firstTest.addDays(i);
            m_tank->conditionListArray().push_back(record);
        }
    }
    ConditionData &test(int index) { return *m_tank->conditionListArray()[std::size_t(index)]; }

    void open()
    {
        GraphController::sharedInstance().display();
        m_window = m_shell->window.findChild<QDialog *>(QStringLiteral("graphWindow"));
        QVERIFY(m_window);
    }
    template <class Widget>
    Widget *find(const char *name)
    {
        return m_window->findChild<Widget *>(QLatin1String(name));
    }
    TestDateCombo &combo(const char *name) { return *find<TestDateCombo>(name); }
    TwoDGraphView &view() { return *find<TwoDGraphView>("graphView"); }
    void press(const char *name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void type(const char *name, const QString &typed)
    {
        combo(name).lineEdit()->selectAll();
        QTest::keyClick(combo(name).lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(combo(name).lineEdit(), typed);
    }
    void point(QWidget *widget, QEvent::Type type)
    {
        const QPointF place(3, 3);
        QEnterEvent enter(place, place, widget->mapToGlobal(place));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(widget, type == QEvent::Enter ? &enter : &leave);
    }
    QStringList shownBoxes()
    {
        QList<QCheckBox *> boxes = find<QWidget>("graphLegend")->findChildren<QCheckBox *>();
        std::sort(boxes.begin(), boxes.end(), [this](QCheckBox *a, QCheckBox *b) {
            return a->mapTo(m_window, QPoint()).y() < b->mapTo(m_window, QPoint()).y();
        });
        return test::listOf(boxes, &QObject::objectName);
    }
    template <class Act>
    void expectRangeAlert(Act act, const char *button = "defaultButton")
    {
        QStringList said;
        test::onNextAlert([&said, button](AlertDialog &alert) {
            said = QStringList{alert.title(), alert.message()};
            test::pressAlertButton(button);
        });
        act();
        QCOMPARE(said, QStringList({text("DateRangeTitle"), text("DateRangeMessage")}));
        QCOMPARE(m_shell->beeps, 1);
    }

    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
    QDialog *m_window = nullptr;
};

BRINEMARK_TEST(QApplication, TestGraphController)
#include "tst_graph_controller.moc"
