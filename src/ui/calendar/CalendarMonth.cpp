// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/calendar/CalendarMonth.h"

namespace brinemark::calendar
{

namespace
{

constexpr int monthsInYear = 12;

QDate ifInRange(QDate day, QDate otherwise)
{
    return isInRange(day) ? day : otherwise;
}

} // namespace

bool isInRange(QDate day)
{
    return day.isValid() && day.year() >= 1 && day.year() <= 9999;
}

QDate monthOf(QDate day)
{
    return {day.year(), day.month(), 1};
}

QDate addMonths(QDate day, int months)
{
    return ifInRange(day.addMonths(months), day);
}

QDate dayAt(QDate month, int place, Qt::DayOfWeek firstDayOfWeek)
{
    const QDate first = monthOf(month);
    const int before = (first.dayOfWeek() - firstDayOfWeek + daysInWeek) % daysInWeek;
    return ifInRange(first.addDays(place - before), {});
}

std::optional<QDate> dayAfterKey(QDate day, QDate today, int key, Qt::KeyboardModifiers modifiers,
                                 Qt::LayoutDirection direction)
{
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return {};
    const int forwards = direction == Qt::RightToLeft ? -1 : 1;
    const int page = modifiers & Qt::ShiftModifier ? monthsInYear : 1;
    switch (key) {
    case Qt::Key_Left:
        return ifInRange(day.addDays(-forwards), day);
    case Qt::Key_Right:
        return ifInRange(day.addDays(forwards), day);
    case Qt::Key_Up:
        return ifInRange(day.addDays(-daysInWeek), day);
    case Qt::Key_Down:
        return ifInRange(day.addDays(daysInWeek), day);
    case Qt::Key_PageUp:
        return addMonths(day, -page);
    case Qt::Key_PageDown:
        return addMonths(day, page);
    case Qt::Key_Home:
        return monthOf(day);
    case Qt::Key_End:
        return QDate(day.year(), day.month(), day.daysInMonth());
    case Qt::Key_T:
        return ifInRange(today, day);
    default:
        return {};
    }
}

QDateTime moved(const QDateTime &value, QDate day, QTime time)
{
    constexpr int hour = 3600;
    constexpr int mostLeftOut = 25; // hours; a zone that moves across the date line skips a whole day
    QDateTime result = value;
    for (int hours = 0; hours <= mostLeftOut; ++hours) {
        const QDateTime wanted = QDateTime(day, time, Qt::UTC).addSecs(hours * hour);
        result.setDate(wanted.date());
        result.setTime(wanted.time());
        if (result.isValid() && result.time() == wanted.time())
            break;
    }
    return result;
}

} // namespace brinemark::calendar
