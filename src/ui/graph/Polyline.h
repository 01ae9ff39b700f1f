// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLineF>
#include <QList>
#include <QPolygonF>
#include <QRectF>

namespace brinemark
{

/// What a polyline is drawn with.
struct GraphStrokes {
    QList<QLineF> segments; ///< of the line's width
    QList<QLineF> uprights; ///< likewise, where a whole column is full of corners
    QList<QRectF> fills;    ///< what uprights have in common
};

/// The strokes of a polyline as far as they lie within `area`: a strongly magnified line has corners millions of pixels
/// away, more than a painter can take. Three or more corners in a row within one column of `columnWidth` become one
/// upright segment from the lowest to the highest; what joins two such that overlap is left out, and what many of them
/// have in common is filled at once. It looks the same.
///
/// Single segments, because the raster engine strokes them some forty times faster than one long polyline (950 corners,
/// 2 pixels wide, smooth: 0.5 ms against 24 ms).
[[nodiscard]] GraphStrokes strokesOf(const QPolygonF &line, const QRectF &area, double columnWidth);

} // namespace brinemark
