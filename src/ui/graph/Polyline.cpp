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

/// Whether two uprights stand side by side, so that what leads from one to the other does not show.
bool overlap(const QLineF &a, const QLineF &b, double columnWidth)
{
    return !a.isNull() && !b.isNull() && b.x1() - a.x1() < columnWidth * 1.5 && a.y1() <= b.y2() && b.y1() <= a.y2();
}

} // namespace

QList<QLineF> segmentsOf(const QPolygonF &line, const QRectF &area, double columnWidth)
{
    QList<QLineF> result;
    result.reserve(line.size());
    const auto column = [columnWidth](const QPointF &corner) { return std::floor(corner.x() / columnWidth); };
    QLineF previous; // the upright before, null when there was none
    for (auto first = line.begin(); first != line.end();) {
        auto next = first + 1;
        while (next != line.end() && column(*next) == column(*first))
            ++next;
        QLineF upright;
        if (next - first > 2) {
            const auto [low, high] =
                std::minmax_element(first, next, [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
            const double x = (column(*first) + 0.5) * columnWidth;
            upright = QLineF(x, low->y(), x, high->y());
            appendClipped(result, upright, area);
        } else if (next - first == 2) {
            appendClipped(result, QLineF(*first, *(first + 1)), area);
        }
        if (first != line.begin() && !overlap(previous, upright, columnWidth))
            appendClipped(result, QLineF(*(first - 1), *first), area);
        previous = upright;
        first = next;
    }
    return result;
}

} // namespace brinemark
