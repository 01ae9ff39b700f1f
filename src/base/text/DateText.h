// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QStringView>

/// Dates as text: the fixed form of files, and the calendar-format notation ("%m/%d/%y") of everything shown or
/// exported.
namespace brinemark
{

/// "2007-03-14 18:22:05 -0500": date, time and offset in the value's own zone. An invalid date, or one whose year does
/// not have one to four digits, gives an empty text.
[[nodiscard]] QString fileDateText(const QDateTime &date);

/// Reads the form of fileDateText and nothing else; a null date when the text does not match or names a day that does
/// not exist. The value keeps the offset of the text (Qt::OffsetFromUTC).
[[nodiscard]] QDateTime dateFromFileText(QStringView text);

/// A date and time in calendar-format notation: %a %A weekday, %b %B month name, %d %m two digits, %e day padded with a
/// blank, %y %Y year, %H %I hour of 24 and 12, %M minute, %S second, %F milliseconds, %p half of the day, %j day of the
/// year, %w weekday (Sunday 0), %z offset, %Z zone, %x %X %c the locale's date, time and both, %% a per-cent sign. A 1
/// after the per-cent sign leaves out the padding (%1d, %1m, %1I). Names are the locale's; an invalid date gives an
/// empty text.
[[nodiscard]] QString calendarText(const QDateTime &date, const QString &calendarFormat,
                                   const QLocale &locale = QLocale());

/// Reads a date that a person typed by a calendar format: midnight of that day, in local time. Reads day, month and
/// year (%d %e %m %b %B %y %Y) and skips the weekday's name (%a %A). Leading zeros, blanks and a mark at the end may be
/// missing; full stop, slash and hyphen are interchangeable. A year has two or four digits, whatever the format says;
/// 69 to 99 mean 1969 to 1999 and 00 to 68 mean 2000 to 2068, as POSIX reads %y. Null for any other text, for a day
/// that does not exist, and when the format has other fields or lacks day, month or year.
[[nodiscard]] QDateTime dateFromCalendarText(QStringView text, const QString &calendarFormat,
                                             const QLocale &locale = QLocale());

/// Translates the toolkit's notation ("M/d/yy 'at' h:mm AP") to calendar-format notation ("%m/%d/%y at %I:%M %p").
/// Numeric fields become two-digit ones, so that columns of dates line up.
[[nodiscard]] QString calendarFormatFromQt(const QString &qtFormat);

/// The user's short date format in calendar-format notation, such as "%m/%d/%y".
[[nodiscard]] QString dateFormatterForLocale();

/// A date as lists and exports show it: calendarText with dateFormatterForLocale.
[[nodiscard]] QString localeDateText(const QDateTime &date);

} // namespace brinemark
