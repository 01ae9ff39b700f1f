// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Condition.h"
#include "model/Parameters.h"

#include <QList>
#include <QPointF>

#include <vector>

namespace brinemark
{

/// The data that a graph draws from a tank's water tests in a range of dates. X counts days, with fractions, from the
/// first test in range; both coordinates have single precision.
class ConditionSeries
{
public:
    ConditionSeries() = default; ///< a series without tests

    /// Takes the tests from `start` to `end`, both included. Every visible column of the log (see
    /// shownConditionColumns()) except date and temperature becomes a line, in the order of the columns.
    ConditionSeries(const Condition &log, const QDateTime &start, const QDateTime &end);

    /// The tests in range by ascending date; tests of the same moment in the order of the log.
    [[nodiscard]] const Condition::Records &graphArray() const { return m_graphArray; }

    /// The parameters of the lines in drawing order; empty without a test in range.
    [[nodiscard]] const std::vector<Parameter> &colorIdentifierArray() const { return m_colorIdentifierArray; }

    /// The top of the Y axis: the largest value of the lines, and at least 20.
    [[nodiscard]] double maxYValue() const { return m_maxYValue; }

    /// The largest value of a line; 0 when the parameter was never tested.
    [[nodiscard]] double largestValue(Parameter parameter) const;

    /// Days from the first test in range to the last.
    [[nodiscard]] float maxXValue() const { return m_days.empty() ? 0 : m_days.back(); }

    /// The moment of a place on the X axis, but not after the last test. There must be a test in range.
    [[nodiscard]] QDateTime dateAt(double days) const;

    /// One for every day, but at least 2 and at most 12.
    [[nodiscard]] int numberOfXTickMarks() const;

    /// Whether any test in range has a value for the parameter.
    [[nodiscard]] bool isTested(Parameter parameter) const;

    /// The points of a line, one for every test. A test without a value is interpolated between the values before and
    /// after, in equal steps from test to test; the line is flat before the first value and after the last. Empty when
    /// the parameter was never tested.
    [[nodiscard]] QList<QPointF> points(Parameter parameter) const;

    /// "x: " and the day's date (days are rounded up), "y: " and the value, in the user's locale. For a point of the
    /// parameter's line, a third line names the parameter and either the test's date and value as the log shows them,
    /// or the date of the test that lacks a value.
    [[nodiscard]] QString toolTip(QPointF point, Parameter parameter) const;

private:
    [[nodiscard]] const ConditionData *testAt(QPointF point, Parameter parameter) const;

    Condition::Records m_graphArray;
    std::vector<float> m_days; ///< X of every test in range
    std::vector<Parameter> m_colorIdentifierArray;
    double m_maxYValue = 20;
};

/// The number of tick marks on a Y axis: 10 while its top is at most 40; above that one for every ten, but at most 20.
[[nodiscard]] int numberOfYTickMarks(double maxYValue);

/// The label of a tick mark on the X axis, where days count from 1. `defaultLabel` is the number with a full stop; what
/// follows the full stop is left out.
[[nodiscard]] QString dayTickLabel(const QString &defaultLabel);

/// The same with the fraction of the day, for a magnified graph that shows fewer than two whole days. It has the user's
/// decimal separator.
[[nodiscard]] QString dayFractionTickLabel(const QString &defaultLabel);

/// The label of a tick mark on the Y axis, with the user's decimal separator: three significant digits, more in a
/// magnified graph whose tick marks need more.
[[nodiscard]] QString valueTickLabel(const QString &defaultLabel, int neededDigits = 3);

/// The top of the Y axis for a position of the scale slider, at least 0.1. Moving the slider up zooms in.
[[nodiscard]] double scaledMaxYValue(float sliderMaximum, float sliderValue);

} // namespace brinemark
