// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/calendar/CalendarPopup.h"

#include "base/Clock.h"
#include "base/text/Texts.h"
#include "ui/IconButton.h"
#include "ui/Spacing.h"
#include "ui/calendar/CalendarDays.h"
#include "ui/calendar/CalendarMonth.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QTimeEdit>
#include <QToolButton>
#include <QWheelEvent>

namespace brinemark
{

namespace
{

constexpr int monthsInYear = 12;

bool isUsable(const QDateTime &date)
{
    return date.isValid() && calendar::isInRange(date.date());
}

/// The time as the time field shows it, without seconds.
QTime toMinute(QTime time)
{
    return {time.hour(), time.minute()};
}

} // namespace

CalendarPopup::CalendarPopup(const QDateTime &date, QWidget *parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint)
    , m_hasStart(isUsable(date))
    , m_start(m_hasStart ? date : clock::now())
    , m_days(new CalendarDays(m_start.date(), m_hasStart, clock::now().date(), this))
{
    setObjectName("calendarPopup");
    setAccessibleName(text("CalendarPopup"));
    setWindowTitle(text("CalendarPopup"));
    if (parent)
        setLayoutDirection(parent->layoutDirection());

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundGroup);
    column->setSpacing(spacing::tight);
    column->addLayout(makeTitleRow());
    column->addWidget(m_days, 1);
    column->addSpacing(spacing::section); // paintEvent() draws a line in this gap
    column->addLayout(makeTimeRow());

    connect(m_days, &CalendarDays::pageTurned, this, &CalendarPopup::showTitle);
    connect(m_days, &CalendarDays::dayClicked, this, [this] { Q_EMIT finished(true); });
    setTabOrder(m_days, m_time);
    m_days->setFocus();
    showTitle();
}

// ---- building

QToolButton *CalendarPopup::addPageButton(const char *iconName, const QString &title, const char *objectName,
                                          int months)
{
    QToolButton *button = makeIconButton(iconName, title, objectName);
    button->setFocusPolicy(Qt::NoFocus); // each has a key, and the Tab key moves only between the days and the time
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, m_days, [this, months] { m_days->turnPage(months); });
    m_pageButtons.append({button, months});
    return button;
}

QLayout *CalendarPopup::makeTitleRow()
{
    // In a right-to-left layout, the next page is on the left.
    const bool mirrored = isRightToLeft();
    const char *previousMonth = mirrored ? "NextMonth" : "PreviousMonth";
    const char *nextMonth = mirrored ? "PreviousMonth" : "NextMonth";
    const char *previousYear = mirrored ? "NextYear" : "PreviousYear";
    const char *nextYear = mirrored ? "PreviousYear" : "NextYear";

    m_title = new QLabel;
    m_title->setObjectName("calendarTitle");
    m_title->setAlignment(Qt::AlignCenter);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);

    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(addPageButton(previousYear, text("PreviousYear"), "previousYearButton", -monthsInYear));
    row->addWidget(addPageButton(previousMonth, text("PreviousMonth"), "previousMonthButton", -1));
    row->addWidget(m_title, 1);
    row->addWidget(addPageButton(nextMonth, text("NextMonth"), "nextMonthButton", 1));
    row->addWidget(addPageButton(nextYear, text("NextYear"), "nextYearButton", monthsInYear));
    return row;
}

QLayout *CalendarPopup::makeTimeRow()
{
    m_time = new QTimeEdit(m_start.time());
    m_time->setObjectName("timeField");
    m_time->setLayoutDirection(Qt::LeftToRight); // right to left would show the minute before the hour
    m_time->setDisplayFormat(QLocale().timeFormat(QLocale::ShortFormat));
    m_time->setWrapping(true);
    m_time->setAccessibleName(text("CalendarTime"));
    m_time->setToolTip(text("CalendarTime"));
    auto *caption = new QLabel(text("CalendarTime"));
    caption->setBuddy(m_time);

    auto *today = new QPushButton(text("Today"));
    today->setObjectName("todayButton");
    today->setToolTip(text("CalendarToday"));
    today->setAccessibleDescription(text("CalendarToday"));
    today->setFocusPolicy(Qt::NoFocus);
    today->setAutoDefault(false);
    connect(today, &QPushButton::clicked, m_days, [this] {
        if (const QDate day = clock::now().date(); calendar::isInRange(day))
            m_days->choose(day);
    });

    auto *row = new QHBoxLayout;
    row->setSpacing(spacing::group);
    row->addWidget(caption);
    row->addWidget(m_time);
    row->addStretch(1);
    row->addWidget(today);
    return row;
}

void CalendarPopup::showTitle()
{
    const QDate month = m_days->shownMonth();
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    m_title->setText(locale.standaloneMonthName(month.month()) + ' ' + locale.toString(month.year()));
    for (const auto &[button, months] : m_pageButtons)
        button->setEnabled(calendar::addMonths(month, months) != month);
}

// ---- the date

QTime CalendarPopup::chosenTime() const
{
    const QTime start = m_start.time();
    const QTime shown = m_time->time();
    if (m_time->displayedSections() & QDateTimeEdit::SecondSection)
        return QTime(shown.hour(), shown.minute(), shown.second()) ==
                       QTime(start.hour(), start.minute(), start.second())
                   ? start
                   : shown;
    return toMinute(shown) == toMinute(start) ? start : toMinute(shown);
}

QDateTime CalendarPopup::date() const
{
    if (m_days->day() == m_start.date() && chosenTime() == m_start.time())
        return m_start; // computing it again could give the other of two equal hours when the clocks go back
    return calendar::moved(m_start, m_days->day(), chosenTime());
}

bool CalendarPopup::isChanged() const
{
    return (!m_hasStart && m_days->isChosen()) || date() != m_start;
}

// ---- closing

void CalendarPopup::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT finished(false);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // When the calendar began without a date, Return chooses the day at which the keys are.
        if (!m_hasStart)
            m_days->choose(m_days->day());
        Q_EMIT finished(true);
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void CalendarPopup::mousePressEvent(QMouseEvent *event)
{
    // An open pop-up receives every press, also those outside it.
    if (!rect().contains(event->position().toPoint()))
        Q_EMIT left(event->globalPosition().toPoint());
}

void CalendarPopup::closeEvent(QCloseEvent *event)
{
    // Closed by the window system or by another command, not by the user: keep what was changed.
    QFrame::closeEvent(event);
    Q_EMIT finished(true);
}

void CalendarPopup::wheelEvent(QWheelEvent *event)
{
    constexpr int step = QWheelEvent::DefaultDeltasPerStep;
    m_wheel += event->angleDelta().y();
    const int pages = m_wheel / step;
    m_wheel -= pages * step;
    if (pages != 0)
        m_days->turnPage(-pages);
    event->accept();
}

void CalendarPopup::paintEvent(QPaintEvent *)
{
    // The window system draws no frame, and styles draw frames for light palettes, so draw thin lines in the text
    // colour.
    const auto ink = [this](float strength) {
        QColor colour = palette().color(QPalette::WindowText);
        colour.setAlphaF(strength);
        return colour;
    };
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(ink(0.35F));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    const QRect days = m_days->geometry();
    painter.fillRect(QRect(days.left(), days.bottom() + 10, days.width(), 1), ink(0.2F));
}

} // namespace brinemark

#include "moc_CalendarPopup.cpp"
