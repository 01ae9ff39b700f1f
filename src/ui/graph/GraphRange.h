// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace brinemark
{

/// A range of an axis, in graph units.
struct GraphRange {
    double min = 0;
    double max = 1;

    [[nodiscard]] double length() const { return max - min; }
    [[nodiscard]] bool contains(double value) const { return value >= min && value <= max; }
    friend bool operator==(const GraphRange &, const GraphRange &) = default;
};

/// A range that can be drawn: finite (other values count as 0), with its ends in order and apart. An empty range gets
/// the length 1.
[[nodiscard]] GraphRange drawableRange(double min, double max);

/// `visible` made `factor` times as long, with `anchor` staying at its place. Never longer than `full` or outside it,
/// and never shorter than a millionth of it.
[[nodiscard]] GraphRange zoomedRange(const GraphRange &visible, const GraphRange &full, double anchor, double factor);

/// `visible` moved by `distance`, stopping at the ends of `full`.
[[nodiscard]] GraphRange movedRange(const GraphRange &visible, const GraphRange &full, double distance);

} // namespace brinemark
