// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>

#include <optional>

/// The date arithmetic and the keys of the calendar, without a widget.
namespace brinemark::calendar
{

inline constexpr int daysInWeek = 7;
inline constexpr int shownWeeks = 6; ///< enough for every month, whatever weekday it begins on

/// Whether a day can be chosen: valid and within the years 1 to 9999, which tank files can hold.
[[nodiscard]] bool isInRange(QDate day);

/// The first day of the day's month.
[[nodiscard]] QDate monthOf(QDate day);

/// The same day `months` later (or earlier, when negative), or the last day of a shorter month. Returns `day` when the
/// result would leave the range.
[[nodiscard]] QDate addMonths(QDate day, int months);

/// The day at a position on a month's page, counted from 0 in reading order; the page begins with the week that
/// contains the first of the month. Null when the day is out of range.
[[nodiscard]] QDate dayAt(QDate month, int place, Qt::DayOfWeek firstDayOfWeek);

/// The day to which a key leads from `day`: arrows move by day and week, Page Up and Page Down by month (with Shift by
/// year), Home and End to the ends of the month, T to `today`. Returns `day` when the step would leave the range and
/// nullopt for any other key. Left and right are swapped in right-to-left layouts.
[[nodiscard]] std::optional<QDate> dayAfterKey(QDate day, QDate today, int key, Qt::KeyboardModifiers modifiers,
                                               Qt::LayoutDirection direction);

/// `value` moved to another day and time, in its own zone or at its own offset. A time that the zone skips on that day
/// is moved on by whole hours to one that exists.
[[nodiscard]] QDateTime moved(const QDateTime &value, QDate day, QTime time);

} // namespace brinemark::calendar
