// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/Decimate.h"

#include <algorithm>
#include <array>

namespace brinemark
{

namespace
{

using Place = QList<QPointF>::const_iterator;

bool lower(const QPointF &a, const QPointF &b)
{
    return a.y() < b.y();
}

/// Adds the first, last, lowest and highest point of a column, each once.
void appendColumn(QList<QPointF> &result, Place begin, Place end)
{
    const auto [lowest, highest] = std::minmax_element(begin, end, lower);
    std::array places{begin, lowest, highest, end - 1};
    std::sort(places.begin(), places.end());
    const auto last = std::unique(places.begin(), places.end());
    for (auto place = places.begin(); place != last; ++place)
        result.append(**place);
}

} // namespace

QList<QPointF> decimated(const QList<QPointF> &points, double xMin, double xMax, int columns)
{
    const auto begin = std::lower_bound(points.begin(), points.end(), xMin,
                                        [](const QPointF &point, double x) { return point.x() < x; });
    const auto end =
        std::upper_bound(begin, points.end(), xMax, [](double x, const QPointF &point) { return x < point.x(); });
    const bool hasPrevious = begin != points.begin();
    const bool hasNext = end != points.end();
    if (columns < 1 || end - begin <= columns) {
        const auto first = hasPrevious ? begin - 1 : begin;
        return QList<QPointF>(first, hasNext ? end + 1 : end);
    }

    QList<QPointF> result;
    result.reserve(4 * qsizetype(columns) + 2);
    if (hasPrevious)
        result.append(*(begin - 1));
    const double width = (xMax - xMin) / columns;
    auto column = begin;
    for (int i = 0; i < columns && column != end; ++i) {
        // The last column also takes points that rounding left beyond its edge.
        const double edge = xMin + width * (i + 1);
        const auto next = i == columns - 1
                              ? end
                              : std::find_if(column, end, [edge](const QPointF &point) { return point.x() >= edge; });
        if (next != column)
            appendColumn(result, column, next);
        column = next;
    }
    if (hasNext)
        result.append(*end);
    return result;
}

} // namespace brinemark
