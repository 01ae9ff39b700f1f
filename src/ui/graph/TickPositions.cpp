// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/TickPositions.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cmath>

namespace brinemark
{

namespace
{

/// The distance of tick marks, as a fraction of whole numbers: 0.1 has no exact double, but 3 / 10 is the double
/// nearest to 0.3, which 3 * 0.1 is not.
struct TickStep {
    double numerator;
    double denominator;

    [[nodiscard]] double multiple(double k) const { return k * numerator / denominator; }
};

/// The smallest step of which `count` are at least as long as `length`. For a whole step, only the whole part of the
/// length counts, so that 8.1 days and 8 marks give every day; a mark in the rest is cut off.
TickStep tickStep(double length, int count, bool whole)
{
    constexpr std::array tenths{10.0, 20.0, 25.0, 30.0, 40.0, 50.0, 100.0};
    constexpr double rounding = 1 - 1e-9;
    const double shortest = (whole ? std::max(std::floor(length) / count, 1.0) : length / count) * rounding;
    const int exponent = int(std::floor(std::log10(shortest))) - 1;
    const double power = std::pow(10, std::abs(exponent));
    for (const double mantissa : tenths) {
        const TickStep step = exponent < 0 ? TickStep{mantissa, power} : TickStep{mantissa * power, 1};
        const double size = step.multiple(1);
        if (size >= shortest && (!whole || size == std::floor(size)))
            return step;
    }
    return {100 * power, 1}; // not reached: 100 tenths of the power exceed the shortest step
}

QList<double> multiplesIn(const GraphRange &visible, int count, bool whole)
{
    constexpr double rounding = 1e-9; // of a step
    QList<double> positions;
    const TickStep step = tickStep(visible.length(), count, whole);
    const double size = step.multiple(1);
    const double first = std::ceil(visible.min / size - rounding) + 0.0; // turns -0 into 0
    const double last = std::floor(visible.max / size + rounding);
    for (double k = first; k <= last && positions.size() < count; ++k)
        positions.append(step.multiple(k));
    return positions;
}

} // namespace

QList<double> tickPositions(const GraphRange &visible, int count, bool preferWhole)
{
    if (count <= 0)
        return {};
    const QList<double> positions = multiplesIn(visible, count, preferWhole);
    return preferWhole && positions.size() < std::min(count, 2) ? multiplesIn(visible, count, false) : positions;
}

int significantDigits(const QList<double> &values)
{
    constexpr int most = 15; // every decimal of so many digits survives as a double
    int digits = 1;
    for (const double value : values) {
        while (digits < most && QString::number(value, 'g', digits).toDouble() != value)
            ++digits;
    }
    return digits;
}

} // namespace brinemark
