// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QPointF>

namespace brinemark
{

/// The points from `xMin` to `xMax`, reduced to what a raster of so many columns can show: of each column the first,
/// last, lowest and highest point, in their order, so that no extreme is lost. The nearest point on either side of the
/// range is kept, since the line leads to it. When there are no more points than columns, all are kept. `points` must
/// be finite and ascend in x. Returns at most 4 x `columns` + 2 points.
[[nodiscard]] QList<QPointF> decimated(const QList<QPointF> &points, double xMin, double xMax, int columns);

} // namespace brinemark
