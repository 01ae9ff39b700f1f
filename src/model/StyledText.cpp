// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/StyledText.h"

#include <QFontDatabase>
#include <QTextCursor>

namespace brinemark
{

namespace
{

constexpr double styledTextPoints = 10;

QTextCharFormat formatOf(TextStyle style)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSizeF(styledTextPoints);
    font.setBold(style == TextStyle::Caption);
    QTextCharFormat format;
    format.setFont(font);
    return format;
}

} // namespace

void StyledText::append(TextStyle style, const QString &text)
{
    if (text.isEmpty())
        return;
    if (!m_runs.empty() && m_runs.back().style == style)
        m_runs.back().text += text;
    else
        m_runs.push_back({style, text});
}

QString StyledText::plainText() const
{
    QString plain;
    for (const Run &run : m_runs)
        plain += run.text;
    return plain;
}

void StyledText::insertAt(QTextCursor &cursor) const
{
    for (const Run &run : m_runs)
        cursor.insertText(run.text, formatOf(run.style));
}

} // namespace brinemark
