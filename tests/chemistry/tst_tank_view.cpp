// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/TankSheetDriver.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

using namespace brinemark;
using brinemark::test::local;
using brinemark::test::row;

class TestTankView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = std::make_unique<test::TankSheetDriver>(); }
    void cleanup() { m_driver.reset(); }

    void listsTheTargetsByName()
    {
        m_driver->tank().ironData()->name.clear(); // a file may lack it
        m_driver->tank().copperData()->name = QStringLiteral("zinc");
        QTableView &table = *showView();
        const QAbstractItemModelTester tester(table.model());
        QCOMPARE(table.model()->rowCount(), 17);
        const auto nameAt = [&](int row) { return table.model()->index(row, 0).data().toString(); };
        // Sorted without regard to case.
        QCOMPARE(test::listOf(QList{0, 6, 12, 16}, nameAt), QStringList({"Alkalinity", "Iron", "pH", "zinc"}));
    }

    void cells_data()
    {
        test::columns<bool, bool, bool>("warning", "deviation", "grey");
        row("both off", false, false, true);
        row("band without warning", false, true, true);
        row("warning without band", true, false, true);
        row("both on", true, true, false);
    }
    void cells()
    {
        const auto [warning, deviation, grey] = test::fetch<bool, bool, bool>("warning", "deviation", "grey");
        TankData &target = *m_driver->tank().alkalinityData(); // the first row
        target.warningOn = warning;
        target.deviationOn = deviation;
        target.preferredValue = 8.25F;
        target.deviationValue = 0.5F;
        const QAbstractItemModel &model = *showView()->model();
        QCOMPARE(model.index(0, 1).data().toString(), local("8,25"));
        QCOMPARE(model.index(0, 2).data().toString(), warning ? text("OnLabel") : text("OffLabel"));
        QCOMPARE(model.index(0, 3).data().toString(), text("PlusMinus") + local(" 0,5"));
        const QColor disabled = QApplication::palette().color(QPalette::Disabled, QPalette::Text);
        QCOMPARE(model.index(0, 3).data(Qt::ForegroundRole), grey ? QVariant(disabled) : QVariant());
        QVERIFY(!model.index(0, 1).data(Qt::ForegroundRole).isValid());
    }

    void opensTheSheetAtARow()
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
        QVERIFY(m_driver->isUp());
        QCOMPARE(m_driver->control<QComboBox>("warningPopup")->currentText(), QStringLiteral("Nitrate"));
        m_driver->pressIn("preferredField", Qt::Key_Up);
        m_driver->click("okButton");
        QCOMPARE(rowOf(QStringLiteral("Nitrate")).siblingAtColumn(1).data().toString(), local("1,0"));
        QCOMPARE(table.currentIndex().data().toString(), QStringLiteral("Nitrate")); // the row stays selected

        QTest::keyClick(&table, Qt::Key_Delete);
        QCOMPARE(m_driver->shell.deletesAsked, 1);
        table.clearSelection();
        TankDataController::sharedInstance().view()->findChild<QPushButton *>("editButton")->click();
        QCOMPARE(m_driver->control<QComboBox>("warningPopup")->currentText(), QStringLiteral("Alkalinity"));
        m_driver->click("okButton");
        const QPoint below(20, table.viewport()->height() - 2);
        QVERIFY(!table.indexAt(below).isValid());
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, below);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, below);
        QVERIFY(!m_driver->isUp());
    }

    void tabKeyGoesAround()
    {
        showView();
        QWidget *view = TankDataController::sharedInstance().view();
        QStringList stops;
        QWidget *stop = m_driver->shell.window.findChild<QWidget *>("tree");
        do {
            if (stop->focusPolicy() & Qt::TabFocus && stop->isVisibleTo(&m_driver->shell.window))
                stops << stop->objectName();
            stop = stop->nextInFocusChain();
        } while (stop->objectName() != QLatin1String("tree"));
        stops.removeAll(QString());
        // The empty size field is not a tab stop.
        QCOMPARE(stops, QStringList({"tree", "nameField", "typeField", "conditionTableView", "editButton", "help"}));
        QVERIFY(view->findChild<QLabel *>("nameField")->textInteractionFlags() & Qt::TextSelectableByMouse);
    }

    void withoutATank()
    {
        m_driver->shell.current = nullptr;
        showView();
        auto *add = TankDataController::sharedInstance().view()->findChild<QPushButton *>("emptyStateButton");
        QVERIFY(add->isVisible());
        add->click();
        QVERIFY(m_driver->isUp());
        m_driver->click("okButton");
        QCOMPARE(m_driver->shell.tanks.count(), 2);
        QVERIFY(!add->isVisible()); // the new tank's targets are shown instead
    }

private:
    /// The tank's view, between a tree and a help button.
    QTableView *showView()
    {
        auto *tree = new QLineEdit(&m_driver->shell.window);
        tree->setObjectName(QStringLiteral("tree"));
        auto *help = new QPushButton(&m_driver->shell.window);
        help->setObjectName(QStringLiteral("help"));
        auto &controller = TankDataController::sharedInstance();
        controller.view()->setParent(&m_driver->shell.window);
        controller.view()->resize(m_driver->shell.window.size());
        controller.view()->show();
        tree->show();
        help->show();
        controller.setKeyViewWithTankList(tree, help);
        QCoreApplication::processEvents(); // runs the layout
        return controller.view()->findChild<QTableView *>("conditionTableView");
    }

    std::unique_ptr<test::TankSheetDriver> m_driver;
};

BRINEMARK_TEST(QApplication, TestTankView)
#include "tst_tank_view.moc"
