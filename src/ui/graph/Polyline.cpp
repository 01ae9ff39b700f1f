#include "ui/graph/Polyline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace brinemark
{

namespace
{

/// Adds what of the segment lies in the area, by the parameters at which it crosses the four edges (Liang and Barsky).
void appendClipped(QList<QLineF> &result, const QLineF &segment, const QRectF &area)
{
    const QPointF start = segment.p1();
    const QPointF way = segment.p2() - start;
    const std::array edges{std::pair{-way.x(), start.x() - area.left()}, std::pair{way.x(), area.right() - start.x()},
                           std::pair{-way.y(), start.y() - area.top()}, std::pair{way.y(), area.bottom() - start.y()}};
    double enters = 0;
    double leaves = 1;
    for (const auto &[outward, distance] : edges) {
        if (outward == 0) {
            if (distance < 0)
                return;
        } else if (outward < 0) {
            enters = std::max(enters, distance / outward);
        } else {
            leaves = std::min(leaves, distance / outward);
        }
    }
    if (enters <= leaves)
        result.append(QLineF(start + way * enters, start + way * leaves));
}

} // namespace

QList<QLineF> segmentsOf(const QPolygonF &line, const QRectF &area, double columnWidth)
{
    QList<QLineF> result;
    result.reserve(line.size());
    const auto column = [columnWidth](const QPointF &corner) { return std::floor(corner.x() / columnWidth); };
    for (auto first = line.begin(); first != line.end();) {
        auto next = first + 1;
        while (next != line.end() && column(*next) == column(*first))
            ++next;
        if (next - first > 2) {
            const auto [low, high] =
                std::minmax_element(first, next, [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
            const double x = (column(*first) + 0.5) * columnWidth;
            appendClipped(result, QLineF(x, low->y(), x, high->y()), area);
        } else if (next - first == 2) {
            appendClipped(result, QLineF(*first, *(first + 1)), area);
        }
        if (next != line.end())
            appendClipped(result, QLineF(*(next - 1), *next), area);
        first = next;
    }
    return result;
}

} // namespace brinemark
