// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLineF>
#include <QList>
#include <QPolygonF>
#include <QRectF>

namespace brinemark
{

/// The shapes that draw a polyline.
struct GraphStrokes {
    QList<QLineF> segments; ///< to be stroked with the line's width
    QList<QLineF> uprights; ///< likewise; each replaces the corners within one pixel column
    QList<QRectF> fills;    ///< the areas that neighbouring upright strokes have in common
};

/// The strokes of a polyline, clipped to `area`: a strongly magnified line has corners millions of pixels away, more
/// than a painter can draw. Three or more corners in a row within one column of `columnWidth` become one upright stroke
/// from the lowest to the highest. The segment that joins two overlapping upright strokes is left out, and the area
/// that many of them have in common is filled at once. The result looks the same.
///
/// Single segments, because the raster engine draws them some forty times faster than one long polyline (950 corners, 2
/// pixels wide, antialiased: 0.5 ms against 24 ms).
[[nodiscard]] GraphStrokes strokesOf(const QPolygonF &line, const QRectF &area, double columnWidth);

} // namespace brinemark
