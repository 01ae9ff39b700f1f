// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QLocale>
#include <QStringView>

namespace brinemark
{

/// A date that a person typed, read from the left as dateFromCalendarText (base/text/DateText.h) says: field by field,
/// with the marks between them. Each step answers whether the text has what was asked for.
class TypedDate
{
public:
    /// Both must live as long as this does.
    TypedDate(QStringView text, const QLocale &locale);

    bool readField(char16_t field);
    bool readMark(QChar mark);

    /// Invalid when something is missing or left over.
    [[nodiscard]] QDate day() const;

private:
    void skipBlanks();
    int readNumber(int &number, int mostDigits); ///< answers how many digits there were
    bool readYear();
    bool readName(int &number, int count, QString (QLocale::*nameOf)(int, QLocale::FormatType) const);

    QStringView m_rest;
    const QLocale &m_locale;
    int m_day = 0;
    int m_month = 0;
    int m_year = 0;
    bool m_hasYear = false;
};

} // namespace brinemark
