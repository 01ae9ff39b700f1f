// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/DateText.h"

#include "base/text/TypedDate.h"

#include <array>
#include <cstdlib>

namespace brinemark
{

namespace
{

constexpr qsizetype fileDateLength = 25; // 2007-03-14 18:22:05 -0500

char16_t *putDigits(char16_t *out, int number, int count)
{
    for (int i = count - 1; i >= 0; --i, number /= 10)
        out[i] = char16_t(u'0' + number % 10);
    return out + count;
}

/// Writes an offset, given in seconds, in whole minutes: "+0100".
char16_t *putOffset(char16_t *out, int seconds)
{
    *out++ = seconds < 0 ? u'-' : u'+';
    const int minutes = std::abs(seconds) / 60;
    return putDigits(putDigits(out, minutes / 60, 2), minutes % 60, 2);
}

/// The number made of the `count` characters at `at`; -1 when one of them is not a digit.
int digitsAt(QStringView text, qsizetype at, int count)
{
    int number = 0;
    for (int i = 0; i < count; ++i) {
        const int digit = text[at + i].unicode() - u'0';
        if (digit < 0 || digit > 9)
            return -1;
        number = number * 10 + digit;
    }
    return number;
}

QString padded(int number, int width, bool bare, QChar fill = u'0')
{
    return QString::number(number).rightJustified(bare ? 0 : width, fill);
}

QString offsetText(const QDateTime &date)
{
    std::array<char16_t, 5> buffer;
    putOffset(buffer.data(), date.offsetFromUtc());
    return QString(reinterpret_cast<const QChar *>(buffer.data()), qsizetype(buffer.size()));
}

QString fieldText(const QDateTime &date, char16_t field, bool bare, const QLocale &locale)
{
    const QDate day = date.date();
    const QTime time = date.time();
    const int hour12 = (time.hour() + 11) % 12 + 1;
    switch (field) {
    case u'a':
        return locale.dayName(day.dayOfWeek(), QLocale::ShortFormat);
    case u'A':
        return locale.dayName(day.dayOfWeek(), QLocale::LongFormat);
    case u'b':
        return locale.monthName(day.month(), QLocale::ShortFormat);
    case u'B':
        return locale.monthName(day.month(), QLocale::LongFormat);
    case u'd':
        return padded(day.day(), 2, bare);
    case u'e':
        return padded(day.day(), 2, bare, u' ');
    case u'm':
        return padded(day.month(), 2, bare);
    case u'y':
        return padded(std::abs(day.year()) % 100, 2, bare);
    case u'Y':
        return padded(day.year(), 4, bare);
    case u'H':
        return padded(time.hour(), 2, bare);
    case u'I':
        return padded(hour12, 2, bare);
    case u'M':
        return padded(time.minute(), 2, bare);
    case u'S':
        return padded(time.second(), 2, bare);
    case u'F':
        return padded(time.msec(), 3, bare);
    case u'p':
        return time.hour() < 12 ? locale.amText() : locale.pmText();
    case u'j':
        return padded(day.dayOfYear(), 3, bare);
    case u'w':
        return QString::number(day.dayOfWeek() % 7);
    case u'z':
        return offsetText(date);
    case u'Z':
        return date.timeZoneAbbreviation();
    case u'x':
        return locale.toString(day, QLocale::ShortFormat);
    case u'X':
        return locale.toString(time, QLocale::ShortFormat);
    case u'c':
        return locale.toString(date, QLocale::ShortFormat);
    case u'%':
        return QStringLiteral("%");
    default:
        return {};
    }
}

QString escaped(QChar c)
{
    return c == u'%' ? QStringLiteral("%%") : QString(c);
}

/// Translates a run of equal letters of the toolkit's notation to calendar-format notation; empty for a letter that is
/// not a field.
QString calendarField(QChar letter, qsizetype count, bool twelveHours)
{
    const auto byLength = [count](const char *numeric, const char *shortName, const char *longName) {
        return QLatin1String(count <= 2 ? numeric : count == 3 ? shortName : longName);
    };
    switch (letter.unicode()) {
    case u'd':
        return byLength("%d", "%a", "%A");
    case u'M':
        return byLength("%m", "%b", "%B");
    case u'y':
        return count == 2 ? QStringLiteral("%y") : QStringLiteral("%Y");
    case u'h':
        return twelveHours ? QStringLiteral("%I") : QStringLiteral("%H");
    case u'H':
        return QStringLiteral("%H");
    case u'm':
        return QStringLiteral("%M");
    case u's':
        return QStringLiteral("%S");
    case u'z':
        return QStringLiteral("%F");
    case u't':
        return QStringLiteral("%Z");
    default:
        return {};
    }
}

/// A piece of the toolkit's notation: a run of equal letters, or a literal character without its quotes.
struct QtFormatPiece {
    QChar character;
    qsizetype count = 1;
    bool literal = false;
};

QList<QtFormatPiece> piecesOf(const QString &format)
{
    QList<QtFormatPiece> pieces;
    bool quoted = false;
    for (qsizetype i = 0; i < format.size();) {
        const QChar c = format.at(i);
        if (c == u'\'') {
            const bool doubled = i + 1 < format.size() && format.at(i + 1) == u'\'';
            if (doubled)
                pieces.append({c, 1, true});
            else
                quoted = !quoted;
            i += doubled ? 2 : 1;
        } else if (quoted) {
            pieces.append({c, 1, true});
            ++i;
        } else if ((c == u'a' || c == u'A') && i + 1 < format.size() && format.at(i + 1).toLower() == u'p') {
            pieces.append({u'p', 1, false});
            i += 2;
        } else {
            qsizetype end = i + 1;
            while (end < format.size() && format.at(end) == c)
                ++end;
            pieces.append({c, end - i, false});
            i = end;
        }
    }
    return pieces;
}

} // namespace

QString fileDateText(const QDateTime &date)
{
    if (!date.isValid())
        return {};
    // Offsets of local mean time, in use until about 1900, include seconds; the file form has whole minutes only.
    const int offset = date.offsetFromUtc() / 60 * 60;
    const QDateTime value = offset == date.offsetFromUtc() ? date : date.toOffsetFromUtc(offset);
    const QDate day = value.date();
    const QTime time = value.time();
    if (day.year() < 1 || day.year() > 9999)
        return {};
    std::array<char16_t, fileDateLength> buffer;
    char16_t *out = putDigits(buffer.data(), day.year(), 4);
    *out++ = u'-';
    out = putDigits(out, day.month(), 2);
    *out++ = u'-';
    out = putDigits(out, day.day(), 2);
    *out++ = u' ';
    out = putDigits(out, time.hour(), 2);
    *out++ = u':';
    out = putDigits(out, time.minute(), 2);
    *out++ = u':';
    out = putDigits(out, time.second(), 2);
    *out++ = u' ';
    putOffset(out, offset);
    return QString(reinterpret_cast<const QChar *>(buffer.data()), fileDateLength);
}

QDateTime dateFromFileText(QStringView text)
{
    if (text.size() != fileDateLength || text[4] != u'-' || text[7] != u'-' || text[10] != u' ' || text[13] != u':' ||
        text[16] != u':' || text[19] != u' ' || (text[20] != u'+' && text[20] != u'-'))
        return {};
    const int year = digitsAt(text, 0, 4);
    const QDate day(year < 1 ? 0 : year, digitsAt(text, 5, 2), digitsAt(text, 8, 2));
    const QTime time(digitsAt(text, 11, 2), digitsAt(text, 14, 2), digitsAt(text, 17, 2));
    const int offsetHours = digitsAt(text, 21, 2);
    const int offsetMinutes = digitsAt(text, 23, 2);
    // No time zone is more than fourteen hours from UTC, and QDateTime supports no more.
    if (!day.isValid() || !time.isValid() || offsetHours < 0 || offsetMinutes < 0 || offsetMinutes > 59 ||
        offsetHours * 60 + offsetMinutes > 14 * 60)
        return {};
    const int offset = (offsetHours * 60 + offsetMinutes) * 60;
    return QDateTime(day, time, Qt::OffsetFromUTC, text[20] == u'-' ? -offset : offset);
}

QString calendarText(const QDateTime &date, const QString &calendarFormat, const QLocale &locale)
{
    if (!date.isValid())
        return {};
    QString result;
    for (qsizetype i = 0; i < calendarFormat.size(); ++i) {
        if (calendarFormat.at(i) != u'%' || i + 1 == calendarFormat.size()) {
            result += calendarFormat.at(i);
            continue;
        }
        ++i;
        const bool bare = calendarFormat.at(i) == u'1' && i + 1 < calendarFormat.size();
        if (bare)
            ++i;
        result += fieldText(date, calendarFormat.at(i).unicode(), bare, locale);
    }
    return result;
}

QDateTime dateFromCalendarText(QStringView text, const QString &calendarFormat, const QLocale &locale)
{
    TypedDate typed(text, locale);
    for (qsizetype i = 0; i < calendarFormat.size(); ++i) {
        const bool isField = calendarFormat.at(i) == u'%' && i + 1 < calendarFormat.size();
        if (isField && calendarFormat.at(i + 1) == u'1' && i + 2 < calendarFormat.size())
            ++i;
        if (isField)
            ++i;
        const QChar c = calendarFormat.at(i);
        if (isField && c != u'%' ? !typed.readField(c.unicode()) : !typed.readMark(c))
            return {};
    }
    const QDate day = typed.day();
    return day.isValid() ? day.startOfDay() : QDateTime();
}

QString calendarFormatFromQt(const QString &qtFormat)
{
    const QList<QtFormatPiece> pieces = piecesOf(qtFormat);
    const bool twelveHours = std::any_of(pieces.begin(), pieces.end(), [](const QtFormatPiece &piece) {
        return !piece.literal && piece.character == u'p';
    });
    QString result;
    for (const QtFormatPiece &piece : pieces) {
        const QString field = piece.literal             ? QString()
                              : piece.character == u'p' ? QStringLiteral("%p")
                                                        : calendarField(piece.character, piece.count, twelveHours);
        result += field.isEmpty() ? escaped(piece.character).repeated(piece.count) : field;
    }
    return result;
}

QString dateFormatterForLocale()
{
    return calendarFormatFromQt(QLocale().dateFormat(QLocale::ShortFormat));
}

QString localeDateText(const QDateTime &date)
{
    return calendarText(date, dateFormatterForLocale());
}

} // namespace brinemark
