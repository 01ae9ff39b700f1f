// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TankOutlineView.h"
#include "base/text/DateText.h"
#include "chemistry/ConditionColumns.h"
#include "chemistry/views/ConditionListController.h"
#include "chemistry/views/GraphController.h"
#include "support/AppFixture.h"
#include "support/Python.h"
#include "ui/graph/TwoDGraphView.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QTableView>
#include <QToolButton>

#include <cmath>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

constexpr const char *reef = "Reef";

/// A number as the user types it.
QString typed(const char *number)
{
    return QString::fromLatin1(number).replace(u'.', QLocale().decimalPoint());
}

} // namespace

/// What a keeper does every week, with the real windows: enter a test, answer its warning, sort, export, draw the
/// graph.
class TestWeeklyUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<Program>();
        m_file = m_program->copyOf(QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml"));
        m_program->start(m_file);
        m_program->window().show();
        QVERIFY(QTest::qWaitForWindowActive(&m_program->window()));
        for (int row = 0; row < 100 && !showsReefLog(); ++row)
            m_program->tree().selectRow(row);
        QVERIFY(showsReefLog());
    }
    void cleanup() { m_program.reset(); }

    void aTestIsEntered()
    {
        const int before = reefLog().count();
        QTest::mouseClick(view()->findChild<QToolButton *>(QStringLiteral("newButton")), Qt::LeftButton);
        QTRY_VERIFY(shownAlert());
        QCOMPARE(shownAlert()->title(), text("NotTestedDialogTitle"));
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(editor());
        QCOMPARE(reefLog().count(), before + 1);

        // temperature, salinity, pH; empty texts skip the columns up to ammonia
        for (const char *value : {"26.4", "1.025", "8.1", "", "", "", "", ""}) {
            QTest::keyClicks(editor(), typed(value));
            QTest::keyClick(editor(), Qt::Key_Tab);
            QTRY_VERIFY(editor());
        }
        QTest::keyClicks(editor(), typed("0.5"));
        QTest::keyClick(editor(), Qt::Key_Return);
        QTRY_VERIFY(shownAlert());
        QVERIFY2(shownAlert()->title().contains(text("Ammonia")), qPrintable(shownAlert()->title()));
        QVERIFY(shownAlert()->message().contains(text("AmmoniaTreatment")));
        QVERIFY(shownAlert()->message().endsWith(text("AmmoniaHighSaltAdvice"))); // of a reef tank
        QVERIFY(pressAlertButton("defaultButton"));

        const int row = table()->currentIndex().row(); // the fixed clock lies between the dates of the sample
        const auto test = std::static_pointer_cast<ConditionData>(reefLog().recordAt(row));
        QCOMPARE(test->date, clock::now());
        QCOMPARE(test->temp, 26.4F);
        QCOMPARE(test->salt, 1.025F);
        QCOMPARE(test->ph, 8.1F);
        QCOMPARE(test->alkalinity, -1.0F);
        QCOMPARE(test->calcium, -1);
        QCOMPARE(test->ammonia, 0.5F);

        QTRY_VERIFY(!editor());
        m_program->controller().performCommand(Command::Undo);
        QCOMPARE(test->ammonia, -1.0F);
        m_program->controller().performCommand(Command::Undo);
        QCOMPARE(test->ph, -1.0F);
        m_program->controller().performCommand(Command::Redo);
        m_program->controller().performCommand(Command::Redo);
        QCOMPARE(test->ph, 8.1F);
        QCOMPARE(test->ammonia, 0.5F);
        QVERIFY(!shownAlert()); // undo and redo show no warning
    }

    void whatIsBeingTypedIsSaved_data()
    {
        QTest::addColumn<int>("command");
        QTest::newRow("save") << int(Command::Save);
        QTest::newRow("quit") << int(Command::Quit); // with the auto-save preference it saves without a question
    }
    void whatIsBeingTypedIsSaved()
    {
        QFETCH(int, command);
        Preferences::shared().set(preference::autoSaveOnQuit, true);
        table()->setCurrentIndex(table()->model()->index(3, sectionOf(u"temp")));
        QTest::keyClick(table(), Qt::Key_2);
        QVERIFY(editor());
        QTest::keyClicks(editor(), typed("6.1"));
        if (Command(command) == Command::Quit)
            QVERIFY(Program::endsAfter([this] { m_program->controller().performCommand(Command::Quit); }));
        else
            m_program->controller().performCommand(Command(command));
        TankList saved;
        QVERIFY(readTanks(readTankDictionary(m_file).root, m_file, saved).ok);
        QCOMPARE(saved.at(1)->conditionListArray().at(3)->temp, 26.1F);
    }

    void theLogIsExported()
    {
        clickHeader(sectionOf(u"nitrate"));
        QVERIFY(m_program->window().isWindowModified());
        const QString path = m_program->filePath(QStringLiteral("reef.csv"));
        chooseAction("Export");
        QVERIFY(answerPanel("exportPanel", path));
        QTRY_VERIFY(QFileInfo::exists(path));

        ConditionListController::sharedInstance().updateColumnInfo();
        m_program->commands().saveCurrentFile();
        QVERIFY(!m_program->window().isWindowModified());
        QStringList arguments{QStringLiteral(BRINEMARK_SOURCE_DIR "/tests/app/expected-log-csv"), m_file,
                              QString::fromLatin1(reef), dateFormatterForLocale()};
        for (const ColumnInfo &column : reefColumns())
            arguments << text(conditionColumnFromIdentifier(column.identifier)->headerKey);
        const PythonRun python = runPython(arguments);
        QVERIFY2(python.exitCode == 0, python.errors.constData());
        const QByteArray expected = python.output;
        QVERIFY(expected.count('\r') == reefLog().count() + 1);
        QCOMPARE(bytesOf(path), expected);
    }

    void theGraphIsDrawn()
    {
        chooseAction("Graph");
        auto *sheet = awaitWindow("graphWindow");
        QVERIFY(sheet);
        // The seven tests of the cycle's second half: 5, 7, 9, 13, 14, 17 and 21 December 2024.
        chooseDate(sheet, "startDateCombo", QDate(2024, 12, 5));
        chooseDate(sheet, "endDateCombo", QDate(2024, 12, 21));
        QTest::mouseClick(sheet->findChild<QPushButton *>(QStringLiteral("drawButton")), Qt::LeftButton);
        auto *graph = sheet->findChild<TwoDGraphView *>(QStringLiteral("graphView"));
        QTRY_VERIFY(graph->isVisible());

        // The shown columns in their order, without date and temperature; nitrate is the sixth of ten.
        const TwoDGraphDataSource &source = GraphController::sharedInstance();
        QCOMPARE(source.numberOfLinesInTwoDGraphView(*graph), 10);
        const QList<QPointF> nitrate = source.dataForLineIndex(*graph, 5);
        // Days from 19:14:21 on the 5th to each test, computed by hand; interpolated from 3 to 7 and from 7 to 11.
        const QList<QPointF> expected{{0, 3},        {2.029525, 3},  {4.005694, 13.0 / 3}, {7.938414, 17.0 / 3},
                                      {8.929421, 7}, {12.041204, 9}, {16.037407, 11}};
        QCOMPARE(nitrate.size(), expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QVERIFY2(QLineF(nitrate[i], expected[i]).length() < 1e-5, QByteArray::number(i));
        QCOMPARE(source.maximumValueForLineIndex(*graph, 0, GraphAxis::Y), 1350.0);
        QVERIFY(std::abs(source.maximumValueForLineIndex(*graph, 0, GraphAxis::X) - 16.037407) < 1e-5);
        sheet->reject();
        QTRY_VERIFY(!sheet->isVisible());
    }

private:
    [[nodiscard]] bool showsReefLog() const
    {
        return m_program->tree().currentTank() && m_program->tree().currentTank()->name == QLatin1String(reef) &&
               m_program->controller().currentView() == MainView::Conditions;
    }
    static Container &reefLog() { return *TankListController::sharedInstance().currentTank()->condition(); }
    static const ColumnInfoArray &reefColumns()
    {
        return TankListController::sharedInstance().currentTank()->condition()->columnInfoArray();
    }
    static QTableView *table() { return ConditionListController::sharedInstance().table(); }
    static QWidget *view() { return ConditionListController::sharedInstance().view(); }
    /// The editor of the cell with the focus; null for none.
    static QLineEdit *editor()
    {
        auto *focused = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        return focused && focused->objectName() == u"cellEditor" ? focused : nullptr;
    }

    static int sectionOf(QStringView identifier)
    {
        const auto &columns = reefColumns();
        const auto isColumn = [&](const ColumnInfo &info) { return info.identifier == identifier; };
        const QHeaderView &header = *table()->horizontalHeader();
        return header.logicalIndex(int(std::find_if(columns.begin(), columns.end(), isColumn) - columns.begin()));
    }

    static void clickHeader(int section)
    {
        const QHeaderView &header = *table()->horizontalHeader();
        table()->scrollTo(table()->model()->index(0, section));
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(section) + 8, header.height() / 2});
    }

    /// Triggers an item of the action button's menu.
    static void chooseAction(const char *key)
    {
        auto *button = view()->findChild<QToolButton *>(QStringLiteral("actionButton"));
        QVERIFY(button && button->menu());
        Q_EMIT button->menu()->aboutToShow();
        for (QAction *action : button->menu()->actions()) {
            if (action->text() == text(operator""_key(key, 0))) {
                QVERIFY(action->isEnabled());
                action->trigger();
                return;
            }
        }
        QFAIL(key);
    }

    /// Chooses the test of a day in a combo box of dates.
    static void chooseDate(QWidget *sheet, const char *name, QDate day)
    {
        auto *combo = sheet->findChild<QComboBox *>(QLatin1String(name));
        int item = 0;
        while (item < combo->count() && combo->itemText(item) != localeDateText(day.startOfDay()))
            ++item;
        QVERIFY(item < combo->count());
        combo->setCurrentIndex(item);
    }

    std::unique_ptr<Program> m_program;
    QString m_file;
};

BRINEMARK_APP_TEST(TestWeeklyUse)
#include "tst_weekly_use.moc"
