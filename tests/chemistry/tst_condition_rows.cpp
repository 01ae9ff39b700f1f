// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionLog.h"
#include "support/AlertDriver.h"
#include "support/TestProgram.h"
#include "ui/MenuTags.h"

#include <QToolButton>

using namespace brinemark;
using namespace brinemark::test;

class TestConditionRows : public QObject, protected ConditionLog
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(open()); }
    void cleanup() { close(); }

    void sortsWhenTheSelectionMoves_data()
    {
        test::columns<std::function<void(QTableView *)>>("move");
        using Move = std::function<void(QTableView *)>;
        row("click", Move([](QTableView *table) { clickCell(table, 2, Ammonia); }));
        row("click and extend", Move([](QTableView *table) { clickCell(table, 2, Ph, Qt::ShiftModifier); }));
        row("down", Move([](QTableView *table) { QTest::keyClick(table, Qt::Key_Down); }));
        row("select all", Move([](QTableView *table) { table->selectAll(); }));
        row("select row", Move([](QTableView *table) { table->selectRow(3); }));
        row("drag", Move([](QTableView *table) {
                const auto middle = [&](int row) { return table->visualRect(table->model()->index(row, 1)).center(); };
                QTest::mousePress(table->viewport(), Qt::LeftButton, {}, middle(1));
                QTest::mouseMove(table->viewport(), middle(2));
                QTest::mouseMove(table->viewport(), middle(3));
                QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, middle(3));
            }));
    }

    void sortsWhenTheSelectionMoves()
    {
        using Move = std::function<void(QTableView *)>;
        QFETCH(Move, move);
        clickCell(table(), 0, Ph);
        edit(0, Ph, 9);
        QCOMPARE(log().rowNeedsSort(), 0);
        edit(0, Ammonia, 1); // not the sort column: the pending sort stays
        clickCell(table(), 0, Ammonia);
        QTest::keyClick(table(), Qt::Key_Right);
        QCOMPARE(log().rowNeedsSort(), 0); // moving within the row does not sort
        QCOMPARE(column(table(), Ph).first(), number(9));
        move(table());
        QCOMPARE(column(table(), Ph).last(), number(9));
        QCOMPARE(selectedRows(table()), QList<int>{4}); // the edited row, where it was sorted to
        QCOMPARE(log().rowNeedsSort(), -1);
        clickCell(table(), 2, Ph); // the next click selects as usual
        QCOMPARE(selectedRows(table()), QList<int>{2});
    }

    void whereNothingMovesTheSelectionGoes()
    {
        clickCell(table(), 1, Ph);
        edit(1, Ph, 7.15);
        clickCell(table(), 3, Ph);
        QCOMPARE(selectedRows(table()), QList<int>{3});
        QCOMPARE(log().rowNeedsSort(), -1);
    }

    void nothingPendingSurvives_data()
    {
        QTest::addColumn<QString>("event");
        for (const char *event : {"another tank", "deleted", "header", "removed elsewhere", "file closed"})
            QTest::newRow(event) << QString::fromLatin1(event);
    }

    void nothingPendingSurvives()
    {
        QFETCH(QString, event);
        clickCell(table(), 0, Ph);
        edit(0, Ph, 9);
        if (event == u"another tank") {
            m_shell->appendTank(makeTank(3));
            log().updateDisplay();
        } else if (event == u"deleted") {
            log().deleteSelected();
            QTRY_VERIFY(shownAlert());
            QVERIFY(pressAlertButton("defaultButton"));
        } else if (event == u"header") {
            clickHeader(table(), Date);
            QCOMPARE(selectedRows(table()), QList<int>{0});
        } else if (event == u"removed elsewhere") {
            m_tank->removeFromConditionListArrayAtIndex(0);
        } else {
            m_shell->current = nullptr;
            m_tank.reset();
            m_shell->tanks.clear();
            log().updateDisplay();
        }
        QCOMPARE(log().rowNeedsSort(), -1);
        table()->selectRow(1);
        QCOMPARE(selectedRows(table()).size(), table()->model()->rowCount() > 0 ? 1 : 0);
    }

    void marks_data()
    {
        test::columns<float, CellMark::Shape, bool>("value", "shape", "says");
        row("low", 7.0F, CellMark::Shape::Below, true);
        row("on the limit", 7.5F, CellMark::Shape::None, false);
        row("high", 8.6F, CellMark::Shape::Above, true);
        row("not tested", -1.0F, CellMark::Shape::None, false);
    }

    void marks()
    {
        const auto [value, says] = fetch<float, bool>("value", "says");
        TankData &target = *m_tank->phData();
        target.warningOn = target.deviationOn = true;
        target.preferredValue = 8;
        target.deviationValue = 0.5;
        m_tank->condition()->records().front()->ph = value;
        const QModelIndex cell = table()->model()->index(0, Ph);
        const CellMark mark = cell.data(CellMarkRole).value<CellMark>();
        QTEST(mark.shape, "shape");
        QCOMPARE(!cell.data(Qt::ToolTipRole).toString().isEmpty(), says);
        QCOMPARE(cell.data(Qt::ForegroundRole).isValid(), says || value < 0);
        QCOMPARE(cell.data().toString(), value < 0 ? text("NotTested") : number(double(value)));
    }

    void menu()
    {
        for (const auto &[tag, disabled] :
             {std::pair(menutag::TwoWaterTests, QStringList{text("Graph"), text("Export")}),
              std::pair(menutag::ConditionSelected, QStringList{text("DeleteTitle")})}) {
            m_shell->deletesAsked = 0;
            m_shell->disabledTag = tag;
            auto *button = log().view()->findChild<QToolButton *>(QStringLiteral("actionButton"));
            QVERIFY(button->isVisible());
            auto *context = table()->findChild<QMenu *>(QStringLiteral("conditionCM"));
            for (QMenu *menu : {button->menu(), context}) {
                Q_EMIT menu->aboutToShow();
                for (const QAction *action : menu->actions()) {
                    if (!action->isSeparator())
                        QCOMPARE(action->isEnabled(), !disabled.contains(action->text()));
                }
                QCOMPARE(menu->actions().at(4)->text(), text("DeleteTitle"));
                menu->actions().at(4)->trigger();
            }
            QCOMPARE(m_shell->deletesAsked, disabled.contains(text("DeleteTitle")) ? 0 : 2);
        }
    }
};

BRINEMARK_TEST(QApplication, TestConditionRows)
#include "tst_condition_rows.moc"
