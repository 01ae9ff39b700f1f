// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphBand.h"
#include "ui/graph/GraphRange.h"
#include "ui/graph/TwoDGraph.h"

#include <QList>
#include <QStringList>

#include <array>
#include <optional>

namespace brinemark
{

/// The tick marks of an axis and their labels.
struct GraphTicks {
    QList<double> positions;
    QStringList labels; ///< one for each position
};

/// A line, ready to be drawn.
struct GraphLine {
    QList<QPointF> points; ///< finite, ascending in x
    GraphLineAttributes attributes;
    bool visible = true;
};

/// Everything that a plot draws, on the screen or on paper.
struct GraphScene {
    QList<GraphLine> lines;
    std::array<GraphRange, 2> visible; ///< by axis
    std::array<GraphTicks, 2> ticks;   ///< by axis
    std::optional<GraphBand> band;

    [[nodiscard]] const GraphRange &range(GraphAxis axis) const { return visible[std::size_t(axis)]; }
    [[nodiscard]] GraphRange &range(GraphAxis axis) { return visible[std::size_t(axis)]; }
};

} // namespace brinemark
