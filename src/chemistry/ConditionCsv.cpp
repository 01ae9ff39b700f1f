// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionCsv.h"

#include "base/text/NumberText.h"
#include "model/RecordFields.h"

#include <QHash>

#include <cmath>

namespace brinemark
{

namespace
{

constexpr QChar separator = u',';
constexpr QChar lineEnd = u'\r';

QString csvField(const QString &text)
{
    return text.contains(separator) ? u'"' + text + u'"' : text;
}

using Member = Field<ConditionData>::Member;

/// Writes the fields of a log. Caches the texts of dates and numbers, because a long log repeats most of them.
class FieldWriter
{
public:
    FieldWriter(QString &out, QString dateFormat)
        : m_out(out)
        , m_dateFormat(std::move(dateFormat))
    {
    }

    void write(const QDateTime &date)
    {
        const QDate day = date.date();
        if (!date.isValid())
            return;
        QString &known = m_days[day];
        if (known.isNull())
            known = csvField(calendarText(QDateTime(day, QTime(0, 0), Qt::UTC), m_dateFormat));
        m_out += known;
    }
    void write(qint32 number)
    {
        if (number >= 0)
            m_out += QString::number(number);
    }
    void write(float number)
    {
        if (std::trunc(number) < 0)
            return;
        QString &known = m_numbers[number];
        if (known.isNull())
            known = floatText(number);
        m_out += known;
    }
    template <class Other>
    void write(const Other &)
    {
    }

private:
    QString &m_out;
    QString m_dateFormat;
    QHash<QDate, QString> m_days;
    QHash<float, QString> m_numbers;
};

} // namespace

QByteArray conditionCsv(const Condition &log, const std::vector<CsvColumn> &columns, const QString &dateFormat)
{
    constexpr qsizetype usualFieldLength = 6;
    QString out;
    out.reserve((qsizetype(log.count()) + 2) * (qsizetype(columns.size()) + 1) * usualFieldLength);
    std::vector<const Member *> members; // null for a column that is not a field
    for (const CsvColumn &column : columns) {
        if (!members.empty())
            out += separator;
        out += column.header;
        const Field<ConditionData> *field = fieldForKey<ConditionData>(column.identifier);
        members.push_back(field ? &field->member : nullptr);
    }
    out += lineEnd;

    FieldWriter writer(out, dateFormat);
    for (const std::shared_ptr<ConditionData> &test : log.conditionArray()) {
        for (std::size_t i = 0; i < members.size(); ++i) {
            if (i > 0)
                out += separator;
            if (members[i])
                std::visit([&](const auto member) { writer.write((*test).*member); }, *members[i]);
        }
        out += lineEnd;
    }
    return out.toLocal8Bit();
}

} // namespace brinemark
