// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Condition.h"
#include "model/Parameters.h"

#include <QList>
#include <QPointF>

#include <vector>

namespace brinemark
{

/// What a graph draws of a tank's water tests over a range of dates. X counts days from the first test in range, with
/// fractions; both coordinates carry single precision.
class ConditionSeries
{
public:
    ConditionSeries() = default; ///< of no tests

    /// The tests that are not before `start` nor after `end`. Every shown column of the log becomes a line, in the
    /// order of the columns, but for the date and the temperature; a saved layout is read as the log reads it (an
    /// unknown column is passed over, one that is named twice is hidden).
    ConditionSeries(const Condition &log, const QDateTime &start, const QDateTime &end);

    /// The tests in range by ascending date; of one moment, in the order of the log.
    [[nodiscard]] const Condition::Records &graphArray() const { return m_graphArray; }

    /// The lines in drawing order. None without a test in range.
    [[nodiscard]] const std::vector<Parameter> &colorIdentifierArray() const { return m_colorIdentifierArray; }

    /// The top of the Y axis: the largest value of the lines, and at least 20.
    [[nodiscard]] double maxYValue() const { return m_maxYValue; }

    /// Days from the first test in range to the last.
    [[nodiscard]] float maxXValue() const { return m_days.empty() ? 0 : m_days.back(); }

    /// 10 up to a top of 40, beyond that one for every ten but no more than 20.
    [[nodiscard]] int numberOfYTickMarks() const;

    /// One a day, but no fewer than 2 and no more than 12.
    [[nodiscard]] int numberOfXTickMarks() const;

    /// Whether any test in range has a value for the parameter.
    [[nodiscard]] bool isTested(Parameter parameter) const;

    /// The points of a line. Where a parameter was not tested, the line goes straight, in equal steps a test, from the
    /// value before to the one after; it is flat before the first value and after the last. Empty when nothing was
    /// tested.
    [[nodiscard]] QList<QPointF> points(Parameter parameter) const;

    /// "x: " and the day's date (days are rounded up), "y: " and the value, as the user writes them.
    [[nodiscard]] QString toolTip(QPointF point) const;

private:
    Condition::Records m_graphArray;
    std::vector<float> m_days; ///< of every test in range
    std::vector<Parameter> m_colorIdentifierArray;
    double m_maxYValue = 20;
};

/// The label of a tick mark in days: they are counted from 1. `defaultLabel` is a number with a full stop.
[[nodiscard]] QString dayTickLabel(const QString &defaultLabel);

/// The label of a tick mark in values: three significant digits, with the user's decimal separator.
[[nodiscard]] QString valueTickLabel(const QString &defaultLabel);

/// The top of the Y axis at a place of the scale slider, which zooms in as it goes up: never less than 0.1.
[[nodiscard]] double scaledMaxYValue(float sliderMaximum, float sliderValue);

} // namespace brinemark
