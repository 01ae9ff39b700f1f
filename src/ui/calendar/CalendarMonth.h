// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>

#include <optional>

/// The rules of the calendar's pages and keys, without a widget.
namespace brinemark::calendar
{

inline constexpr int daysInWeek = 7;
inline constexpr int shownWeeks = 6; ///< six hold every month, wherever its first day falls

/// Whether a day can be chosen: a valid one of the years 1 to 9999, those that files can hold.
[[nodiscard]] bool isInRange(QDate day);

/// The first day of the day's month.
[[nodiscard]] QDate monthOf(QDate day);

/// The day so many months further (or back, when negative), the last of the month where that one is shorter; the day
/// itself when it would leave the range.
[[nodiscard]] QDate addMonths(QDate day, int months);

/// The day at a place of a month's page, counted from 0 in reading order; the page begins with the week that holds the
/// first of the month. Null where the place lies outside the range.
[[nodiscard]] QDate dayAt(QDate month, int place, Qt::DayOfWeek firstDayOfWeek);

/// The day that a key of the calendar leads to from `day`: arrows by day and week, Page Up and Down by month (with
/// Shift by year), Home and End to the ends of the month, T to `today`. A step that would leave the range is not taken.
/// Nothing for any other key. Left and right change places where text runs from right to left.
[[nodiscard]] std::optional<QDate> dayAfterKey(QDate day, QDate today, int key, Qt::KeyboardModifiers modifiers,
                                               Qt::LayoutDirection direction);

/// `value` at another day and time, in its own zone or at its own offset. A time that the zone's clocks leave out on
/// that day moves on by whole hours to one that they show.
[[nodiscard]] QDateTime moved(const QDateTime &value, QDate day, QTime time);

} // namespace brinemark::calendar
