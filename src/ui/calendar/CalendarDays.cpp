// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/calendar/CalendarDays.h"

#include "base/text/Texts.h"
#include "ui/Colours.h"
#include "ui/calendar/CalendarMonth.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace brinemark
{

using calendar::daysInWeek;
using calendar::shownWeeks;

namespace
{

constexpr int rows = 1 + shownWeeks;
constexpr double corner = 4;

QString weekdayName(int column, Qt::DayOfWeek first)
{
    return QLocale().standaloneDayName((first - 1 + column) % daysInWeek + 1, QLocale::ShortFormat);
}

} // namespace

CalendarDays::CalendarDays(QDate day, bool isChosen, QDate today, QWidget *parent)
    : QWidget(parent)
    , m_day(day)
    , m_isChosen(isChosen)
    , m_today(today)
    , m_month(calendar::monthOf(day))
    , m_firstDayOfWeek(QLocale().firstDayOfWeek())
{
    setObjectName("calendarDays");
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    describe();
}

void CalendarDays::choose(QDate day)
{
    m_day = day;
    m_isChosen = true;
    describe();
    showMonth(calendar::monthOf(day));
    update();
}

void CalendarDays::turnPage(int months)
{
    showMonth(calendar::addMonths(m_month, months));
}

void CalendarDays::showMonth(QDate month)
{
    if (month == m_month)
        return;
    m_month = month;
    m_pressed = {};
    setHovered(underMouse() ? dayAt(mapFromGlobal(QCursor::pos())) : QDate());
    update();
    Q_EMIT pageTurned();
}

/// Makes assistive technology read the day: it reads a focused widget's name when the name changes.
void CalendarDays::describe()
{
    setAccessibleName(
        m_isChosen ? fillPlaceholders(text("CalendarChosenDay"), {QLocale().toString(m_day, QLocale::LongFormat)})
                   : text("CalendarDays"));
}

// ---- geometry

QSize CalendarDays::cellSize() const
{
    const QFontMetrics metrics = fontMetrics();
    int widest = metrics.horizontalAdvance(QStringLiteral("00")) + 16;
    for (int column = 0; column < daysInWeek; ++column)
        widest = std::max(widest, metrics.horizontalAdvance(weekdayName(column, m_firstDayOfWeek)) + 8);
    return {widest, metrics.height() + 12};
}

QSize CalendarDays::sizeHint() const
{
    const QSize cell = cellSize();
    return {cell.width() * daysInWeek, cell.height() * rows};
}

QRect CalendarDays::cellAt(int row, int column) const
{
    // Cell edges are rounded to whole pixels so that the columns fill the whole width.
    const int left = width() * column / daysInWeek;
    const int top = height() * row / rows;
    const QRect cell(QPoint(left, top),
                     QPoint(width() * (column + 1) / daysInWeek - 1, height() * (row + 1) / rows - 1));
    return QStyle::visualRect(layoutDirection(), rect(), cell);
}

QDate CalendarDays::dayOfCell(int row, int column) const
{
    return calendar::dayAt(m_month, (row - 1) * daysInWeek + column, m_firstDayOfWeek);
}

QRect CalendarDays::rectOf(QDate day) const
{
    for (int row = 1; row < rows; ++row) {
        for (int column = 0; column < daysInWeek; ++column) {
            if (day.isValid() && dayOfCell(row, column) == day)
                return cellAt(row, column);
        }
    }
    return {};
}

QDate CalendarDays::dayAt(QPoint point) const
{
    for (int row = 1; row < rows; ++row) {
        for (int column = 0; column < daysInWeek; ++column) {
            if (cellAt(row, column).contains(point))
                return dayOfCell(row, column);
        }
    }
    return {};
}

// ---- painting

void CalendarDays::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour(ColourRole::SecondaryText, palette()));
    for (int column = 0; column < daysInWeek; ++column)
        painter.drawText(cellAt(0, column), Qt::AlignCenter, weekdayName(column, m_firstDayOfWeek));
    for (int row = 1; row < rows; ++row) {
        for (int column = 0; column < daysInWeek; ++column) {
            const QDate day = dayOfCell(row, column);
            if (day.isValid())
                paintDay(painter, cellAt(row, column), day);
        }
    }
}

void CalendarDays::paintDay(QPainter &painter, const QRect &cell, QDate day) const
{
    // Half a pixel inside the pixel grid, so that 1 px strokes are sharp.
    const QRectF shape = QRectF(cell).adjusted(1.5, 1.5, -1.5, -1.5);
    const bool isChosen = m_isChosen && day == m_day;
    const bool isOfMonth = calendar::monthOf(day) == m_month;
    const QColor highlight = palette().color(QPalette::Active, QPalette::Highlight);
    QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    if (!isOfMonth)
        ink.setAlphaF(0.5F); // grey but readable, since these days can be chosen too

    painter.setBrush(Qt::NoBrush);
    if (isChosen) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(highlight);
        painter.drawRoundedRect(shape.adjusted(-0.5, -0.5, 0.5, 0.5), corner, corner);
        ink = palette().color(QPalette::Active, QPalette::HighlightedText);
    } else if (day == m_hovered) {
        QColor veil = highlight;
        veil.setAlphaF(0.18F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(veil);
        painter.drawRoundedRect(shape.adjusted(-0.5, -0.5, 0.5, 0.5), corner, corner);
    }
    painter.setBrush(Qt::NoBrush);
    if (day == m_today) {
        painter.setPen(isChosen ? ink : colour(ColourRole::Accent, palette()));
        painter.drawRoundedRect(isChosen ? shape.adjusted(2, 2, -2, -2) : shape, corner, corner);
    }
    if (day == m_day && hasFocus()) {
        // Drawn outside the filled shape, so that it is visible on every highlight colour.
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1, isChosen ? Qt::SolidLine : Qt::DotLine));
        painter.drawRoundedRect(shape.adjusted(-1, -1, 1, 1), corner + 1, corner + 1);
    }
    painter.setPen(ink);
    painter.drawText(cell, Qt::AlignCenter, QLocale().toString(day.day()));
}

// ---- keys and mouse

void CalendarDays::keyPressEvent(QKeyEvent *event)
{
    const auto day = calendar::dayAfterKey(m_day, m_today, event->key(), event->modifiers(), layoutDirection());
    if (day)
        choose(*day);
    else
        event->ignore();
}

void CalendarDays::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? dayAt(event->position().toPoint()) : QDate();
}

void CalendarDays::mouseReleaseEvent(QMouseEvent *event)
{
    // The click that opened the calendar may be released here, so a day counts only when it was also pressed here.
    const QDate pressed = std::exchange(m_pressed, {});
    if (event->button() != Qt::LeftButton || !pressed.isValid() || dayAt(event->position().toPoint()) != pressed)
        return;
    choose(pressed);
    Q_EMIT dayClicked();
}

void CalendarDays::mouseMoveEvent(QMouseEvent *event)
{
    setHovered(dayAt(event->position().toPoint()));
}

void CalendarDays::leaveEvent(QEvent *)
{
    setHovered({});
}

void CalendarDays::setHovered(QDate day)
{
    if (std::exchange(m_hovered, day) != day)
        update();
}

} // namespace brinemark

#include "moc_CalendarDays.cpp"
