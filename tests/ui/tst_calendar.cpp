// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Clock.h"
#include "support/PanelDriver.h"
#include "support/TestProgram.h"
#include "ui/calendar/CalendarController.h"
#include "ui/calendar/CalendarDays.h"
#include "ui/calendar/CalendarMonth.h"
#include "ui/calendar/CalendarPopup.h"

#include <QHeaderView>
#include <QScopeGuard>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimeEdit>
#include <QTimeZone>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>

using namespace brinemark;
using brinemark::test::row;

namespace
{

using Keys = QList<QKeyCombination>;

constexpr int offset = -5 * 3600;

QDateTime at(int year, int month, int day, QTime time = QTime(18, 22, 5))
{
    return QDateTime(QDate(year, month, day), time, Qt::OffsetFromUTC, offset);
}

} // namespace

class CalendarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_clock.emplace(QDateTime(QDate(2026, 3, 14), QTime(12, 0)));
        m_model = std::make_unique<QStandardItemModel>(8, 2);
        m_table = std::make_unique<QTableView>();
        m_table->setModel(m_model.get());
        m_table->setGeometry(100, 60, 400, 300);
        m_table->show();
        m_table->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_table.get()));
        m_chosen.clear();
    }

    void cleanup()
    {
        CalendarController::destroyShared();
        m_table.reset();
        m_model.reset();
    }

    void keysChoose_data()
    {
        // expected: null when the target is not called
        test::columns<QDateTime, Keys, QDateTime>("start", "keys", "expected");
        const QDateTime none;
        const QKeyCombination yearBack = Qt::SHIFT | Qt::Key_PageUp;
        const QKeyCombination yearOn = Qt::SHIFT | Qt::Key_PageDown;
        const auto keys = [](auto... all) { return Keys{QKeyCombination(all)..., QKeyCombination(Qt::Key_Return)}; };
        row("unchanged", at(2007, 3, 14), keys(), none);
        row("next day", at(2007, 3, 14), keys(Qt::Key_Right), at(2007, 3, 15));
        row("into the leap day", at(2024, 2, 28), keys(Qt::Key_Right), at(2024, 2, 29));
        row("past no leap day", at(2100, 2, 28), keys(Qt::Key_Right), at(2100, 3, 1));
        row("leap day a year on", at(2024, 2, 29), keys(yearOn), at(2025, 2, 28));
        row("leap day a year back and on", at(2024, 2, 29), keys(yearBack, yearOn), at(2024, 2, 28));
        row("31st a month on", at(2026, 3, 31), keys(Qt::Key_PageDown), at(2026, 4, 30));
        row("month over the year", at(2026, 12, 5), keys(Qt::Key_PageDown), at(2027, 1, 5));
        row("last of the month", at(2024, 2, 3), keys(Qt::Key_End), at(2024, 2, 29));
        row("first of the month", at(2024, 2, 3), keys(Qt::Key_Home), at(2024, 2, 1));
        row("today", at(2007, 3, 14), keys(Qt::Key_T), at(2026, 3, 14));
        row("there and back", at(2007, 3, 14), keys(Qt::Key_Right, Qt::Key_Left), none);
        row("time there and back", at(2007, 3, 14), keys(Qt::Key_Tab, Qt::Key_Up, Qt::Key_Down), none);
        row("last day there is", at(9999, 12, 31), keys(Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown, yearOn), none);
        row("first day there is", at(1, 1, 1), keys(Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp, yearBack), none);
        row("near the end", at(9999, 12, 30), keys(Qt::Key_Down, Qt::Key_Right), at(9999, 12, 31));
        row("escape", at(2007, 3, 14), Keys{Qt::Key_Right, Qt::Key_Escape}, none);
        row("escape from the time", at(2007, 3, 14), Keys{Qt::Key_Tab, Qt::Key_Up, Qt::Key_Escape}, none);
        row("time only", at(2007, 3, 14), keys(Qt::Key_Tab, Qt::Key_Up), at(2007, 3, 14, {19, 22}));
        row("time and back to the days", at(2007, 3, 14),
            keys(Qt::Key_Tab, Qt::Key_Up, Qt::SHIFT | Qt::Key_Backtab, Qt::Key_Right), at(2007, 3, 15, {19, 22}));
        const QDateTime summer(QDate(2026, 3, 28), QTime(2, 30), QTimeZone("Europe/Berlin"));
        row("an hour left out", summer, keys(Qt::Key_Right),
            QDateTime(QDate(2026, 3, 29), QTime(3, 30), summer.timeZone()));
        row("no date", none, keys(), QDateTime(QDate(2026, 3, 14), QTime(12, 0)));
        row("year out of range", QDateTime(QDate(12026, 1, 1), QTime(1, 0)), keys(Qt::Key_Right),
            QDateTime(QDate(2026, 3, 15), QTime(12, 0)));
    }

    void keysChoose()
    {
        const auto [start, keys, expected] = test::fetch<QDateTime, Keys, QDateTime>("start", "keys", "expected");
        open(start);
        for (const QKeyCombination key : keys)
            press(key);
        QVERIFY(!controller().isOpen());
        QVERIFY(!shownPopup());
        QCOMPARE(m_chosen.size(), expected.isValid() ? 1 : 0);
        if (!expected.isValid())
            return;
        QCOMPARE(m_chosen.first(), expected);
        QCOMPARE(m_chosen.first().date(), expected.date());
        QCOMPARE(m_chosen.first().timeSpec(), expected.timeSpec());
        QCOMPARE(m_chosen.first().offsetFromUtc(), expected.offsetFromUtc());
    }

    void clickTakesTheDay()
    {
        for (const QDate day : {QDate(2026, 5, 20), QDate(2026, 4, 30), QDate(2026, 6, 2)}) {
            m_chosen.clear();
            open(at(2026, 5, 11));
            clickDay(day);
            QVERIFY(!controller().isOpen());
            QCOMPARE(m_chosen, {QDateTime(day, QTime(18, 22, 5), Qt::OffsetFromUTC, offset)});
        }
    }

    void daysOutsideTheRangeAreNotThere()
    {
        open(at(9999, 12, 31));
        QVERIFY(!child<QToolButton>("nextMonthButton")->isEnabled());
        QVERIFY(!child<QToolButton>("nextYearButton")->isEnabled());
        QVERIFY(child<QToolButton>("previousYearButton")->isEnabled());
        const QRect last = days()->rectOf({9999, 12, 31});
        QTest::mouseClick(days(), Qt::LeftButton, {}, last.center() + QPoint(0, last.height()));
        QVERIFY(controller().isOpen());
        controller().closeAndSave(false, false);

        open(at(1, 1, 1));
        for (const char *button : {"previousMonthButton", "previousYearButton"})
            QVERIFY(!child<QToolButton>(button)->isEnabled());
    }

    void pagesTurnAndTheDayStays()
    {
        open(at(2026, 1, 31));
        child<QToolButton>("nextMonthButton")->click();
        QCOMPARE(days()->shownMonth(), QDate(2026, 2, 1));
        child<QToolButton>("nextYearButton")->click();
        child<QToolButton>("previousMonthButton")->click();
        QCOMPARE(days()->shownMonth(), QDate(2027, 1, 1));
        child<QToolButton>("previousYearButton")->click();
        turnWheel(-240);
        QCOMPARE(days()->shownMonth(), QDate(2026, 3, 1));
        turnWheel(60);
        turnWheel(60);
        QCOMPARE(days()->shownMonth(), QDate(2026, 2, 1));
        QCOMPARE(days()->day(), QDate(2026, 1, 31));
        press(Qt::Key_Return);
        QVERIFY(m_chosen.isEmpty());
    }

    void todayButton()
    {
        open(at(2007, 3, 14));
        child<QAbstractButton>("todayButton")->click();
        press(Qt::Key_Return);
        QCOMPARE(m_chosen, {at(2026, 3, 14)});
    }

    void weekBeginsAsTheLocaleSays()
    {
        open(at(2026, 3, 11));
        const Qt::DayOfWeek first = QLocale().firstDayOfWeek();
        const QDate day = calendar::dayAt({2026, 3, 1}, 7, first);
        QCOMPARE(day.dayOfWeek(), int(first));
        QCOMPARE(days()->rectOf(day).left(), 0);
        QCOMPARE(days()->rectOf(day.addDays(6)).right(), days()->width() - 1);
    }

    void clickOutside_data()
    {
        // point: of the table
        test::columns<Keys, QPoint, QList<QDateTime>>("keys", "point", "expected");
        const QPoint row7(300, 250);
        row("changed", Keys{Qt::Key_Right}, row7, QList<QDateTime>{at(2026, 3, 12)});
        row("unchanged", Keys{}, row7, QList<QDateTime>{});
        row("changed, in the header", Keys{Qt::Key_Right}, QPoint(60, 8), QList<QDateTime>{});
        row("changed, at the cell", Keys{Qt::Key_Right}, QPoint(40, 30), QList<QDateTime>{at(2026, 3, 12)});
    }

    void clickOutside()
    {
        const auto [keys, point, expected] = test::fetch<Keys, QPoint, QList<QDateTime>>("keys", "point", "expected");
        open(at(2026, 3, 11));
        QVERIFY(!popupGeometry().contains(m_table->mapToGlobal(point)));
        for (const QKeyCombination key : keys)
            press(key);
        QTest::mouseClick(m_table->windowHandle(), Qt::LeftButton, {}, point);
        QVERIFY(!controller().isOpen());
        QCOMPARE(m_chosen, expected);
    }

    void goesWithWhatItStandsOn_data()
    {
        QTest::addColumn<QString>("what");
        for (const char *what : {"table", "model", "reset", "rows", "other model", "hidden", "resized", "splitter"})
            row(what, QString(what));
    }

    void goesWithWhatItStandsOn()
    {
        QFETCH(QString, what);
        QStandardItemModel other;
        QSplitter splitter;
        const auto takeBack = qScopeGuard([this] {
            if (m_table)
                m_table->setParent(nullptr);
        });
        if (what == "splitter") {
            splitter.addWidget(m_table.get());
            splitter.addWidget(new QWidget);
            splitter.resize(800, 300);
            splitter.show();
        }
        open(at(2026, 3, 11));
        press(Qt::Key_Right);
        if (what == "table")
            m_table.reset();
        else if (what == "model")
            m_model.reset();
        else if (what == "reset")
            m_model->clear();
        else if (what == "rows")
            m_model->removeRow(3);
        else if (what == "other model")
            m_table->setModel(&other);
        else if (what == "resized")
            m_table->resize(m_table->size() + QSize(8, 0));
        else if (what == "splitter")
            QTest::mouseClick(splitter.windowHandle(), Qt::LeftButton, {}, splitter.handle(1)->geometry().center());
        else
            m_table->hide();
        controller().closeAndSave(true, true);
        QVERIFY(!controller().isOpen());
        QVERIFY(!shownPopup());
        QVERIFY(m_chosen.isEmpty());
        if (what == "other model")
            m_table->setModel(nullptr);
    }

    void closesAsTold()
    {
        controller().closeAndSave(true, true); // nothing is open
        for (const bool fade : {false, true}) {
            for (const bool save : {false, true}) {
                m_chosen.clear();
                open(at(2026, 3, 11));
                QCOMPARE(controller().columnIdentifier(), QString("date"));
                press(Qt::Key_Down);
                controller().closeAndSave(save, fade);
                QVERIFY(!shownPopup());
                QCOMPARE(m_chosen.size(), save ? 1 : 0);
                controller().closeAndSave(true, fade);
                QCOMPARE(m_chosen.size(), save ? 1 : 0);
                QTRY_VERIFY(!m_table->findChild<QWidget *>("fadingCalendar"));
            }
        }
    }

    void openingAtAnotherCellTakesTheFirst()
    {
        open(at(2026, 3, 11));
        press(Qt::Key_Down);
        open(at(2020, 1, 1));
        QCOMPARE(m_chosen, {at(2026, 3, 18)});
        QCOMPARE(days()->day(), QDate(2020, 1, 1));
    }

    void theTargetMayDoAnything()
    {
        open(at(2026, 3, 11), [this](const QDateTime &chosen) {
            m_chosen << chosen;
            m_table.reset();
        });
        clickDay({2026, 3, 12});
        QCOMPARE(m_chosen.size(), 1);

        CalendarController::destroyShared();
        init();
        open(at(2026, 3, 11), [this](const QDateTime &chosen) {
            m_chosen << chosen;
            open(at(2020, 1, 1));
        });
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QVERIFY(controller().isOpen());
        QCOMPARE(m_chosen.size(), 1);
    }

    void placeIsOnTheScreen_data()
    {
        test::columns<QRect, bool, QPoint>("cell", "mirrored", "place");
        row("below", QRect(100, 100, 80, 20), false, QPoint(100, 120));
        row("above", QRect(100, 500, 80, 20), false, QPoint(100, 200));
        row("right edge", QRect(700, 100, 80, 20), false, QPoint(600, 120));
        row("left edge, mirrored", QRect(20, 100, 80, 20), true, QPoint(0, 120));
        row("left of the screen", QRect(-50, 100, 80, 20), false, QPoint(0, 120));
        row("no room at either side", QRect(100, 290, 80, 20), false, QPoint(100, 0));
        row("no room, more below", QRect(100, 285, 80, 20), false, QPoint(100, 290));
    }

    void placeIsOnTheScreen()
    {
        const auto [cell, mirrored, place] = test::fetch<QRect, bool, QPoint>("cell", "mirrored", "place");
        const QRect screen(0, 0, 800, 590);
        const QRect result = calendar::placeAt(cell, {200, 300}, screen, mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        QCOMPARE(result, QRect(place, QSize(200, 300)));
        QVERIFY(screen.contains(result));
    }

    void opensBesideTheCell()
    {
        open(at(2026, 3, 11));
        const QRect popup = popupGeometry();
        QCOMPARE(popup.topLeft(), m_table->viewport()->mapToGlobal(cell().bottomLeft()) + QPoint(0, 1));
        QCOMPARE(QApplication::activePopupWidget(), shownPopup());
        QVERIFY(days()->hasFocus());
        QVERIFY(!days()->accessibleName().isEmpty());
    }

private:
    static CalendarController &controller() { return CalendarController::sharedInstance(); }

    [[nodiscard]] QRect cell(int atRow = 0, int column = 0) const
    {
        return m_table->visualRect(m_model->index(atRow, column));
    }
    void open(const QDateTime &date, std::function<void(const QDateTime &)> target = {})
    {
        if (!target)
            target = [this](const QDateTime &chosen) { m_chosen << chosen; };
        controller().setCalendar(target, m_table.get(), "date", cell(), date);
        QVERIFY(shownPopup());
        QVERIFY(QTest::qWaitForWindowExposed(shownPopup()));
    }

    static QWidget *shownPopup() { return test::shownWindow<QWidget>("calendarPopup"); }
    static QRect popupGeometry() { return shownPopup()->geometry(); }

    template <class Widget>
    static Widget *child(const char *name)
    {
        return shownPopup()->findChild<Widget *>(name);
    }
    static CalendarDays *days() { return child<CalendarDays>("calendarDays"); }

    /// Sends the key to the window, which passes it to the focus widget.
    void press(QKeyCombination key) const
    {
        QTest::keyClick(shownPopup()->windowHandle(), key.key(), key.keyboardModifiers());
    }

    static void clickDay(QDate day) { QTest::mouseClick(days(), Qt::LeftButton, {}, days()->rectOf(day).center()); }

    static void turnWheel(int angle)
    {
        const QPointF centre = shownPopup()->rect().center();
        QWheelEvent event(centre, shownPopup()->mapToGlobal(centre), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(shownPopup(), &event);
    }

    std::optional<clock::FixedClock> m_clock;
    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<QTableView> m_table;
    QList<QDateTime> m_chosen;
};

BRINEMARK_TEST(QApplication, CalendarTest)
#include "tst_calendar.moc"
