// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionColumns.h"
#include "chemistry/views/ConditionListController.h"
#include "support/ListDriver.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDialog>
#include <QTableView>

using namespace brinemark;

class TestConditionList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        QVERIFY(m_shell->readTanks(QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml")));
        for (const auto &tank : m_shell->tanks) {
            if (tank->condition()->count() > m_shell->current->condition()->count())
                m_shell->current = tank.get();
        }
        m_shell->window.show();
    }
    void cleanup()
    {
        ConditionListController::destroyShared();
        m_shell.reset();
    }

    void layoutRules_data()
    {
        test::columns<QStringList, QStringList>("saved", "shown");
        QTest::newRow("order") << QStringList{"ph", "date"} << QStringList{"ph", "date"};
        QTest::newRow("unknown") << QStringList{"date", "colour", "", "kH"} << QStringList{"date", "kH"};
        QTest::newRow("twice hides") << QStringList{"date", "ph", "date"} << QStringList{"ph"};
        const QStringList all = test::listOf(Condition::defaultColumnInfoArray(), &ColumnInfo::identifier);
        QTest::newRow("none") << QStringList{} << all;
        QTest::newRow("only unknown ones") << QStringList{"colour", ""} << all;
        QTest::newRow("all hidden again") << QStringList{"date", "date"} << all;
    }
    void layoutRules()
    {
        QFETCH(QStringList, saved);
        ColumnInfoArray columns;
        for (const QString &identifier : saved)
            columns.push_back({identifier, 0});
        m_shell->current->condition()->setColumnInfoArray(columns);
        auto &controller = show();
        QTEST(storedIdentifiers(controller), "shown");
    }

    void widths()
    {
        m_shell->current->condition()->setColumnInfoArray({{"ph", 0}, {"iron", 60}});
        const int own = show().table()->columnWidth(0);
        for (const auto &[saved, shown] : {std::pair(140.0, 140), std::pair(3.0, own), std::pair(1e9, 1000)}) {
            ConditionListController::destroyShared();
            m_shell->current->condition()->setColumnInfoArray({{"ph", saved}, {"iron", 60}});
            QCOMPARE(show().table()->columnWidth(0), shown);
        }
        QCOMPARE(m_shell->changes, 0);
    }

    /// Every column shows "not tested" in full, in every language.
    void widthsForNotTested()
    {
        const auto restore = qScopeGuard([] { setTextLanguages({"en"}); });
        for (const char *language : {"en", "de"}) {
            setTextLanguages({language});
            ConditionListController::destroyShared();
            ColumnInfoArray columns;
            for (const ConditionColumnTraits &column : conditionColumnTable)
                columns.push_back({column.identifier.toString(), 0});
            m_shell->current->condition()->setColumnInfoArray(columns);
            const RecordTableView &table = *show().table();
            const int sides = 2 * (table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table) + 1);
            const int needed = table.fontMetrics().horizontalAdvance(text("NotTested")) + sides;
            for (int column = 1; column < table.model()->columnCount(); ++column)
                QVERIFY2(table.columnWidth(column) >= needed,
                         qPrintable(conditionColumnTable[column].identifier.toString()));
        }
    }

    void showsTheLog()
    {
        const auto &tests = m_shell->current->conditionListArray();
        const int iron = 2;
        m_shell->current->condition()->setColumnInfoArray({{"date", 0}, {"ph", 77}, {"iron", 60}});
        const QAbstractItemModel &three = *show().table()->model();
        const QAbstractItemModelTester tester(show().table()->model());
        QCOMPARE(three.rowCount(), int(tests.size()));
        QCOMPARE(three.columnCount(), 3);
        tests.front()->iron = -1;
        tests.front()->ph = 8.126F;
        QCOMPARE(three.index(0, iron).data().toString(), text("NotTested"));
        QVERIFY(three.index(0, iron).data(Qt::ForegroundRole).isValid());
        QCOMPARE(three.index(0, 1).data().toString(), QLocale().toString(8.13, 'f', 2));
    }

    void columnsAreStoredIntoTheirTank()
    {
        auto &controller = show();
        Tank *first = m_shell->current;
        const QStringList before = storedIdentifiers(controller);
        QHeaderView *header = controller.table()->horizontalHeader();
        header->moveSection(0, 2);
        header->resizeSection(0, 131);
        const auto &stored = first->condition()->columnInfoArray();
        QTRY_COMPARE(stored[2].identifier, before[0]);
        QCOMPARE(stored[2].width, 131);
        QCOMPARE(m_shell->changes, 0);

        // Another tank has its own column order, and storing one leaves the other unchanged.
        const auto other = std::make_shared<Tank>(QStringLiteral("Other"));
        m_shell->tanks.append(other);
        m_shell->current = other.get();
        controller.updateColumnInfo();
        QCOMPARE(stored[2].identifier, before[0]);
        show();
        QCOMPARE(storedIdentifiers(controller).mid(0, 3), QStringList({"date", "temp", "ph"}));
        m_shell->current = first;
        show();
        QCOMPARE(storedIdentifiers(controller)[2], before[0]);
        QCOMPARE(controller.table()->columnWidth(2), 131);
    }

    void choosingColumns()
    {
        m_shell->current->condition()->setColumnInfoArray({{"date", 90}, {"ph", 300}});
        auto &controller = show();
        controller.showCustomizeConditionColumns();
        auto *window = m_shell->window.findChild<QDialog *>(QStringLiteral("customColumnWindow"));
        QVERIFY(window && window->isVisible());
        controller.table()->selectRow(2);
        auto *iron = window->findChild<QCheckBox *>(QStringLiteral("column.iron"));
        QVERIFY(!iron->isChecked());
        iron->click();
        QCOMPARE(storedIdentifiers(controller), QStringList({"date", "ph", "iron"}));
        QVERIFY(controller.table()->columnWidth(1) < 300); // the last column fills the table now
        QVERIFY(controller.isColumnVisible(32));
        QCOMPARE(test::selectedRows(controller.table()), QList<int>{2});
        window->findChild<QCheckBox *>(QStringLiteral("column.date"))->click();
        QCOMPARE(storedIdentifiers(controller), QStringList({"ph", "iron"}));
        QCOMPARE(m_shell->changes, 2);        // the two clicks: a shown or hidden column has to be saved
        controller.toogleConditionColumn(36); // no such column
        QCOMPARE(storedIdentifiers(controller), QStringList({"ph", "iron"}));
        for (const char *last : {"column.ph", "column.iron"})
            window->findChild<QCheckBox *>(QLatin1String(last))->click();
        controller.toogleConditionColumn(32);
        QCOMPARE(storedIdentifiers(controller), QStringList("iron")); // the last one stays
        QVERIFY(iron->isChecked() && !iron->isEnabled());
        window->findChild<QCheckBox *>(QStringLiteral("column.ph"))->click();
        QVERIFY(iron->isEnabled());
    }

private:
    ConditionListController &show()
    {
        auto &controller = ConditionListController::sharedInstance();
        test::present(controller, *m_shell);
        return controller;
    }
    QStringList storedIdentifiers(ConditionListController &controller) const
    {
        controller.updateColumnInfo();
        return test::listOf(m_shell->current->condition()->columnInfoArray(), &ColumnInfo::identifier);
    }

    std::unique_ptr<test::RecordingShell> m_shell;
};

BRINEMARK_TEST(QApplication, TestConditionList)
#include "tst_condition_list.moc"
