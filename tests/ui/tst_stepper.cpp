// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/Stepper.h"

#include <QApplication>
#include <QSignalSpy>
#include <QToolButton>

#include <limits>

using namespace brinemark;
using brinemark::test::row;

class TestStepper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data()
    {
        test::columns<double, double, double, int, double>("from", "increment", "maximum", "count", "to");
        row("tenths do not drift", 0.0, 0.1, 600.0, 3, 0.3);
        row("a thousand tenths", 0.0, 0.1, 600.0, 1000, 100.0);
        row("from between the steps", 7.25, 0.2, 99.0, 1, 7.45);
        row("down", 0.3, 0.1, 5.0, -2, 0.1);
        row("past the bottom", 0.3, 0.5, 5.0, -1, 0.0);
        row("past the top", 2495.0, 10.0, 2500.0, 1, 2500.0);
        row("a maximum between the steps", 98.9, 0.2, 99.0, 4, 99.0);
    }
    void steps()
    {
        const auto [count, to] = test::fetch<int, double>("count", "to");
        Stepper stepper;
        const auto [maximum, increment, from] = test::fetch<double, double, double>("maximum", "increment", "from");
        stepper.setRange(0, maximum);
        stepper.setIncrement(increment);
        stepper.setValue(from);
        auto *arrow = stepper.findChild<QToolButton *>(count > 0 ? "upButton" : "downButton");
        for (int i = 0; i < std::abs(count); ++i)
            arrow->click();
        QVERIFY2(stepper.value() == to, qPrintable(QString::number(stepper.value(), 'g', 17)));
        QCOMPARE(stepper.findChild<QToolButton *>("upButton")->isEnabled(), to < maximum);
        QCOMPARE(stepper.findChild<QToolButton *>("downButton")->isEnabled(), to > 0);
    }

    void onlyAPersonIsHeard()
    {
        Stepper stepper;
        const QSignalSpy heard(&stepper, &Stepper::valueChanged);
        stepper.setRange(0, 5);
        stepper.setValue(9);
        QCOMPARE(stepper.value(), 5.0);
        stepper.setValue(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(stepper.value(), 0.0);
        stepper.setValue(4);
        stepper.setRange(0, 3); // limits the value too
        QCOMPARE(stepper.value(), 3.0);
        QCOMPARE(heard.count(), 0);
        stepper.stepBy(1); // already at the maximum
        QCOMPARE(heard.count(), 0);
        stepper.stepBy(-1);
        QCOMPARE(heard, (QList<QVariantList>{{2.0}}));
    }

    void keysAndHolding()
    {
        Stepper stepper;
        stepper.setRange(0, 40);
        stepper.show();
        QCOMPARE(stepper.focusPolicy(), Qt::TabFocus);
        for (const auto &[key, value] :
             {std::pair(Qt::Key_Up, 1.0), std::pair(Qt::Key_Right, 2.0), std::pair(Qt::Key_Down, 1.0),
              std::pair(Qt::Key_Left, 0.0), std::pair(Qt::Key_End, 40.0), std::pair(Qt::Key_Home, 0.0)}) {
            QTest::keyClick(&stepper, key);
            QCOMPARE(stepper.value(), value);
        }
        auto *up = stepper.findChild<QToolButton *>("upButton");
        QTest::mousePress(up, Qt::LeftButton);
        QTRY_VERIFY(stepper.value() >= 3);
        QTest::mouseRelease(up, Qt::LeftButton);
        QVERIFY(!up->isDown());
    }
};

BRINEMARK_TEST(QApplication, TestStepper)
#include "tst_stepper.moc"
