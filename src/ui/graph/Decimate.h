// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QPointF>

namespace brinemark
{

/// The points from `xMin` to `xMax` thinned to what a raster of so many columns can show: of each column its first,
/// last, lowest and highest point, in their order, so that no extreme is lost. The neighbours of the range are kept on
/// both sides, since the line runs to them. Points that do not outnumber the columns stay as they are.
/// `points` ascend in x and are finite. Gives at most 4 x `columns` + 2 points.
[[nodiscard]] QList<QPointF> decimated(const QList<QPointF> &points, double xMin, double xMax, int columns);

} // namespace brinemark
