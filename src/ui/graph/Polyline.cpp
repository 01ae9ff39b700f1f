// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/Polyline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace brinemark
{

namespace
{

/// Adds the part of a segment that lies within the area, found from the parameters at which it crosses the four edges
/// (the algorithm of Liang and Barsky).
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

/// Collects strokes. Upright strokes are kept back until the run that they belong to is complete.
class Strokes
{
public:
    Strokes(const QRectF &area, double columnWidth)
        : m_area(area)
        , m_columnWidth(columnWidth)
    {
    }

    void addSegment(const QLineF &segment) { appendClipped(m_strokes.segments, segment, m_area); }

    /// `upright` must run downwards on the screen: y1 <= y2.
    void addUpright(const QLineF &upright)
    {
        constexpr qsizetype longest = 16; // longer runs have too little height in common
        if (m_run.size() == longest || !touchesRun(upright))
            finishRun();
        m_run.append(upright);
    }

    /// Whether `upright` overlaps the previous upright stroke, so that the segment that joins them is invisible.
    [[nodiscard]] bool touchesRun(const QLineF &upright) const
    {
        return !m_run.isEmpty() && upright.x1() - m_run.last().x1() < m_columnWidth * 1.5 &&
               upright.y1() <= m_run.last().y2() && m_run.last().y1() <= upright.y2();
    }

    void finishRun()
    {
        double top = -std::numeric_limits<double>::infinity();
        double bottom = -top;
        for (const QLineF &upright : std::as_const(m_run)) {
            top = std::max(top, upright.y1());
            bottom = std::min(bottom, upright.y2());
        }
        constexpr double worthwhile = 8; // pixels
        const bool filled = m_run.size() > 2 && bottom - top > worthwhile;
        for (qsizetype i = 0; i < m_run.size(); ++i) {
            const QLineF &upright = m_run[i];
            // The first and the last stroke are drawn whole, since they are the edges of the filled area.
            if (!filled || i == 0 || i == m_run.size() - 1) {
                appendClipped(m_strokes.uprights, upright, m_area);
            } else {
                const double x = upright.x1();
                appendClipped(m_strokes.uprights, QLineF(x, upright.y1(), x, top), m_area);
                appendClipped(m_strokes.uprights, QLineF(x, bottom, x, upright.y2()), m_area);
            }
        }
        if (filled) {
            const QRectF common(QPointF(m_run.first().x1(), top), QPointF(m_run.last().x1(), bottom));
            if (const QRectF visible = common.intersected(m_area); !visible.isEmpty())
                m_strokes.fills.append(visible);
        }
        m_run.clear();
    }

    [[nodiscard]] GraphStrokes take() { return std::move(m_strokes); }

private:
    QRectF m_area;
    double m_columnWidth;
    QList<QLineF> m_run;
    GraphStrokes m_strokes;
};

} // namespace

GraphStrokes strokesOf(const QPolygonF &line, const QRectF &area, double columnWidth)
{
    Strokes strokes(area, columnWidth);
    const auto column = [columnWidth](const QPointF &corner) { return std::floor(corner.x() / columnWidth); };
    for (auto first = line.begin(); first != line.end();) {
        auto next = first + 1;
        while (next != line.end() && column(*next) == column(*first))
            ++next;
        const bool isUpright = next - first > 2;
        const auto [low, high] =
            std::minmax_element(first, next, [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        const double x = (column(*first) + 0.5) * columnWidth;
        const QLineF upright(x, low->y(), x, high->y());
        if (first != line.begin() && !(isUpright && strokes.touchesRun(upright)))
            strokes.addSegment(QLineF(*(first - 1), *first));
        if (isUpright) {
            strokes.addUpright(upright);
        } else {
            strokes.finishRun();
            if (next - first == 2)
                strokes.addSegment(QLineF(*first, *(first + 1)));
        }
        first = next;
    }
    strokes.finishRun();
    return strokes.take();
}

} // namespace brinemark
