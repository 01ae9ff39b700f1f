// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/GraphRange.h"

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

/// Beyond this, computing axes would overflow a double.
constexpr double largest = 1e100;

/// The shortest allowed length of a range, relative to its larger absolute end. In a shorter one, neighbouring pixels
/// could round to the same double.
constexpr double doubleSteps = 1e-11;

double drawable(double value)
{
    return std::isfinite(value) ? std::clamp(value, -largest, largest) : 0;
}

double stepAt(const GraphRange &range)
{
    return std::max(std::abs(range.min), std::abs(range.max)) * doubleSteps;
}

GraphRange within(const GraphRange &full, double min, double length)
{
    if (length >= full.length())
        return full;
    min = std::clamp(min, full.min, full.max - length);
    return {min, min + length};
}

} // namespace

GraphRange drawableRange(double min, double max)
{
    GraphRange range{drawable(min), drawable(max)};
    if (range.min > range.max)
        std::swap(range.min, range.max);
    // At very large values, adding 1 would be lost in rounding.
    if (range.length() <= stepAt(range))
        range.max = range.min + std::max(1.0, stepAt(range) * 1000);
    return range;
}

GraphRange zoomedRange(const GraphRange &visible, const GraphRange &full, double anchor, double factor)
{
    constexpr double smallestPart = 1e-6;
    const double shortest = std::min(full.length(), std::max(full.length() * smallestPart, stepAt(full)));
    const double length = std::clamp(visible.length() * factor, shortest, full.length());
    const double place = std::clamp((anchor - visible.min) / visible.length(), 0.0, 1.0);
    return within(full, visible.min + place * (visible.length() - length), length);
}

GraphRange movedRange(const GraphRange &visible, const GraphRange &full, double distance)
{
    return within(full, visible.min + distance, visible.length());
}

} // namespace brinemark
