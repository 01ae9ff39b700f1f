// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/TypedDate.h"

namespace brinemark
{

namespace
{

bool isSeparator(QChar c)
{
    return c == u'.' || c == u'/' || c == u'-';
}

} // namespace

TypedDate::TypedDate(QStringView text, const QLocale &locale)
    : m_rest(text.trimmed())
    , m_locale(locale)
{
}

bool TypedDate::readField(char16_t field)
{
    skipBlanks();
    switch (field) {
    case u'd':
    case u'e':
        return readNumber(m_day, 2) > 0;
    case u'm':
        return readNumber(m_month, 2) > 0;
    case u'y':
    case u'Y':
        return readYear();
    case u'b':
    case u'B':
        return readName(m_month, 12, &QLocale::monthName);
    case u'a':
    case u'A': {
        int weekday = 0;
        return readName(weekday, 7, &QLocale::dayName);
    }
    default:
        return false;
    }
}

bool TypedDate::readMark(QChar mark)
{
    if (mark.isSpace())
        return true;
    skipBlanks();
    if (m_rest.isEmpty())
        return true; // marks at the end may be missing; readField() reports a missing field
    if (m_rest.front() != mark && !(isSeparator(m_rest.front()) && isSeparator(mark)))
        return false;
    m_rest = m_rest.sliced(1);
    return true;
}

QDate TypedDate::day() const
{
    return m_rest.trimmed().isEmpty() && m_hasYear ? QDate(m_year, m_month, m_day) : QDate();
}

void TypedDate::skipBlanks()
{
    while (!m_rest.isEmpty() && m_rest.front().isSpace())
        m_rest = m_rest.sliced(1);
}

int TypedDate::readNumber(int &number, int mostDigits)
{
    number = 0;
    int digits = 0;
    for (; digits < mostDigits && !m_rest.isEmpty() && m_rest.front().isDigit(); ++digits) {
        number = number * 10 + m_rest.front().digitValue();
        m_rest = m_rest.sliced(1);
    }
    return digits;
}

bool TypedDate::readYear()
{
    const int digits = readNumber(m_year, 4);
    if (digits == 1 || digits == 2)
        m_year += m_year < 69 ? 2000 : 1900;
    m_hasYear = digits > 0 && digits != 3;
    return m_hasYear;
}

/// Consumes the longest name, full or abbreviated, that the text begins with.
bool TypedDate::readName(int &number, int count, QString (QLocale::*nameOf)(int, QLocale::FormatType) const)
{
    qsizetype longest = 0;
    for (int i = 1; i <= count; ++i) {
        for (const QLocale::FormatType form : {QLocale::LongFormat, QLocale::ShortFormat}) {
            const QString name = (m_locale.*nameOf)(i, form);
            if (name.size() > longest && m_rest.startsWith(name, Qt::CaseInsensitive)) {
                longest = name.size();
                number = i;
            }
        }
    }
    m_rest = m_rest.sliced(longest);
    return longest > 0;
}

} // namespace brinemark
