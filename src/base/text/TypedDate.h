// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QLocale>
#include <QStringView>

namespace brinemark
{

/// Reads a date that a person typed, by the rules of dateFromCalendarText (base/text/DateText.h). The caller reads the
/// fields and the marks between them from left to right; readField() and readMark() return whether the text continues
/// with them.
class TypedDate
{
public:
    /// Text and locale must outlive this object.
    TypedDate(QStringView text, const QLocale &locale);

    bool readField(char16_t field);
    bool readMark(QChar mark);

    /// The date; invalid when a field is missing or text is left over.
    [[nodiscard]] QDate day() const;

private:
    void skipBlanks();
    int readNumber(int &number, int mostDigits); ///< returns the number of digits read
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
