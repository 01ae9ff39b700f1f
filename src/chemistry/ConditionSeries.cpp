// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionSeries.h"

#include "base/text/DateText.h"
#include "base/text/NumberText.h"
#include "base/text/Texts.h"
#include "chemistry/ConditionColumns.h"
#include "model/KeyAccess.h"
#include "model/RecordFields.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

constexpr qint64 secondsPerDay = 86400;
constexpr qint64 millisecondsPerDay = secondsPerDay * 1000;

/// Reads one parameter of many tests, looking up its field only once.
class ParameterValue
{
public:
    explicit ParameterValue(Parameter parameter)
        : m_member(fieldForKey<ConditionData>(traitsOf(parameter).identifier)->member)
    {
    }

    float operator()(const ConditionData &test) const
    {
        if (const auto *real = std::get_if<float ConditionData::*>(&m_member))
            return test.**real;
        return float(test.*std::get<qint32 ConditionData::*>(m_member));
    }

private:
    Field<ConditionData>::Member m_member;
};

bool wasTested(float value)
{
    return value >= 0;
}

/// The tests in range by ascending date. Converts every date to milliseconds only once.
Condition::Records recordsInRange(const Condition::Records &log, const QDateTime &start, const QDateTime &end)
{
    struct Dated {
        qint64 moment;
        std::shared_ptr<ConditionData> test;
    };
    const qint64 first = start.toMSecsSinceEpoch();
    const qint64 last = end.toMSecsSinceEpoch();
    std::vector<Dated> dated;
    for (const std::shared_ptr<ConditionData> &test : log) {
        if (!test->date.isValid())
            continue;
        const qint64 moment = test->date.toMSecsSinceEpoch();
        if (moment >= first && moment <= last)
            dated.push_back({moment, test});
    }
    std::stable_sort(dated.begin(), dated.end(), [](const Dated &a, const Dated &b) { return a.moment < b.moment; });
    Condition::Records records;
    records.reserve(dated.size());
    for (Dated &entry : dated)
        records.push_back(std::move(entry.test));
    return records;
}

std::vector<Parameter> linesOf(const ColumnInfoArray &columns)
{
    std::vector<Parameter> lines;
    for (const ShownConditionColumn &shown : shownConditionColumns(columns)) {
        const std::optional<Parameter> parameter = parameterFromIdentifier(shown.column->identifier);
        if (parameter && parameter != Parameter::Temp)
            lines.push_back(*parameter);
    }
    return lines;
}

/// Fills the values that were not tested. At least one value must have been tested.
void fillGaps(std::vector<float> &values)
{
    const auto nextTested = [&](std::size_t from) {
        return std::size_t(std::find_if(values.begin() + std::ptrdiff_t(from), values.end(), wasTested) -
                           values.begin());
    };
    const std::size_t first = nextTested(0);
    std::fill_n(values.begin(), first, values[first]);
    for (std::size_t at = first + 1; at < values.size(); ++at) {
        if (wasTested(values[at]))
            continue;
        const std::size_t next = nextTested(at);
        const float before = values[at - 1];
        const float step = next == values.size() ? 0 : (values[next] - before) / float(next - at + 1);
        for (float k = 1; at < next; ++at, ++k)
            values[at] = before + step * k;
    }
}

} // namespace

ConditionSeries::ConditionSeries(const Condition &log, const QDateTime &start, const QDateTime &end)
    : m_graphArray(recordsInRange(log.conditionArray(), start, end))
{
    if (m_graphArray.empty())
        return;
    m_colorIdentifierArray = linesOf(log.columnInfoArray());
    for (const Parameter parameter : m_colorIdentifierArray)
        m_maxYValue = std::max(m_maxYValue, largestValue(parameter));
    const qint64 firstMoment = m_graphArray.front()->date.toMSecsSinceEpoch();
    m_days.reserve(m_graphArray.size());
    for (const std::shared_ptr<ConditionData> &test : m_graphArray)
        m_days.push_back(float(double(test->date.toMSecsSinceEpoch() - firstMoment) / double(millisecondsPerDay)));
}

double ConditionSeries::largestValue(Parameter parameter) const
{
    const ParameterValue valueOf(parameter);
    double largest = 0;
    for (const std::shared_ptr<ConditionData> &test : m_graphArray)
        largest = std::max(largest, double(valueOf(*test)));
    return largest;
}

QDateTime ConditionSeries::dateAt(double days) const
{
    // At the end, the single precision of maxXValue() could give the day before or after.
    return days >= double(maxXValue()) ? m_graphArray.back()->date
                                       : m_graphArray.front()->date.addMSecs(qint64(days * millisecondsPerDay));
}

int ConditionSeries::numberOfXTickMarks() const
{
    if (m_graphArray.empty())
        return 2;
    const qint64 seconds =
        (m_graphArray.back()->date.toMSecsSinceEpoch() - m_graphArray.front()->date.toMSecsSinceEpoch()) / 1000;
    return int(std::clamp<qint64>(seconds / secondsPerDay, 2, 12));
}

bool ConditionSeries::isTested(Parameter parameter) const
{
    const ParameterValue valueOf(parameter);
    return std::any_of(m_graphArray.begin(), m_graphArray.end(),
                       [&](const auto &test) { return wasTested(valueOf(*test)); });
}

QList<QPointF> ConditionSeries::points(Parameter parameter) const
{
    if (!isTested(parameter))
        return {};
    const ParameterValue valueOf(parameter);
    std::vector<float> values;
    values.reserve(m_graphArray.size());
    for (const std::shared_ptr<ConditionData> &test : m_graphArray)
        values.push_back(valueOf(*test));
    fillGaps(values);
    QList<QPointF> points;
    points.reserve(qsizetype(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i)
        points.emplaceBack(double(m_days[i]), double(values[i]));
    return points;
}

/// The test of a point of the parameter's line; null for other points. Of tests at the same point it is the first one
/// with a value, if any.
const ConditionData *ConditionSeries::testAt(QPointF point, Parameter parameter) const
{
    const QList<QPointF> points = this->points(parameter);
    const ParameterValue valueOf(parameter);
    const ConditionData *found = nullptr;
    for (qsizetype i = points.indexOf(point); i >= 0; i = points.indexOf(point, i + 1)) {
        const ConditionData *test = m_graphArray[std::size_t(i)].get();
        if (wasTested(valueOf(*test)))
            return test;
        found = test;
    }
    return found;
}

QString ConditionSeries::toolTip(QPointF point, Parameter parameter) const
{
    if (m_graphArray.empty())
        return {};
    const qint64 days = qint64(std::ceil(float(point.x())));
    const QDateTime date = m_graphArray.front()->date.addSecs(days * secondsPerDay);
    QString tip = QStringLiteral("x: %1\ny: %2").arg(localeDateText(date), localizeAndTrimZeros(float(point.y())));
    if (const ConditionData *test = testAt(point, parameter)) {
        const ParameterTraits &traits = traitsOf(parameter);
        const QString name = text(traits.targetNameKey);
        const QString day = localeDateText(test->date);
        if (wasTested(ParameterValue(parameter)(*test))) {
            const SFCheckedFormatter formatter = conditionFormatter(*conditionColumnFromIdentifier(traits.identifier));
            const QString value = formatter.stringForObjectValue(valueForKey(*test, traits.identifier));
            tip += u'\n' + fillPlaceholders(text("GraphPointTested"), {name, value, day});
        } else {
            tip += u'\n' + fillPlaceholders(text("GraphPointFilledIn"), {name, day});
        }
    }
    return tip;
}

int numberOfYTickMarks(double maxYValue)
{
    constexpr double most = 20;
    return maxYValue <= 40 ? 10 : int(std::min(most, std::ceil(std::floor(maxYValue) / 10)));
}

QString dayTickLabel(const QString &defaultLabel)
{
    return QString::number(leadingInteger(defaultLabel) + 1);
}

QString dayFractionTickLabel(const QString &defaultLabel)
{
    constexpr int digits = 12; // states every tick mark, and hides the error of adding 1
    return QString::number(leadingNumber(defaultLabel) + 1, 'g', digits).replace(u'.', QLocale().decimalPoint());
}

QString valueTickLabel(const QString &defaultLabel, int neededDigits)
{
    return QString::number(leadingNumber(defaultLabel), 'g', std::max(3, neededDigits))
        .replace(u'.', QLocale().decimalPoint());
}

double scaledMaxYValue(float sliderMaximum, float sliderValue)
{
    return std::max(0.1, double(sliderMaximum - sliderValue));
}

} // namespace brinemark
