// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/GraphLayers.h"

#include "ui/graph/Decimate.h"
#include "ui/graph/GraphPlot.h"
#include "ui/graph/GraphSymbols.h"
#include "ui/graph/Polyline.h"

#include <cmath>

namespace brinemark
{

namespace
{

/// How far a symbol at the edge of the plot reaches beyond it, in pixels.
constexpr int symbolMargin = 6;

/// The smallest average distance of symbols, in pixels. Closer symbols would only make the line look thicker.
constexpr double symbolDistance = 8;

/// The width of the pixel columns to which lines are reduced, in device-independent pixels. Lines are seldom thinner
/// than that.
constexpr double columnWidth = 1;

/// The width that an outline adds to a line, in pixels.
constexpr double outlineWidth = 1.2;

/// The same for upright strokes: with 2 they fill whole pixels and are drawn in half the time.
constexpr double uprightOutlineWidth = 2;

} // namespace

GraphBandLayer::GraphBandLayer(GraphPlot *plot)
    : QCPLayerable(plot, QStringLiteral("background"))
    , m_plot(plot)
{
}

QRect GraphBandLayer::clipRect() const
{
    return m_plot->plotRect();
}

void GraphBandLayer::applyDefaultAntialiasingHint(QCPPainter *painter) const
{
    painter->setAntialiasing(false);
}

void GraphBandLayer::draw(QCPPainter *painter)
{
    const std::optional<GraphBand> &band = m_plot->scene().band;
    if (!band || !std::isfinite(band->low) || !std::isfinite(band->high))
        return;
    const QRectF plot = m_plot->plotRect();
    const double low = m_plot->toPixels({0, std::min(band->low, band->high)}).y();
    const double high = m_plot->toPixels({0, std::max(band->low, band->high)}).y();
    // Painters cannot draw coordinates that lie very far outside.
    const auto edge = [&plot](double y) { return std::clamp(y, plot.top() - 10, plot.bottom() + 10); };
    QColor shade = band->colour;
    shade.setAlphaF(0.14F);
    painter->setBrush(Qt::NoBrush);
    if (band->low == band->high) {
        painter->setPen(QPen(band->colour, 1.5, Qt::DashLine, Qt::FlatCap));
        painter->drawLine(QLineF(plot.left(), edge(low), plot.right(), edge(low)));
        return;
    }
    painter->fillRect(QRectF(QPointF(plot.left(), edge(high)), QPointF(plot.right() + 1, edge(low))), shade);
    shade.setAlphaF(0.5F);
    painter->setPen(QPen(shade, 1));
    for (const double y : {edge(low), edge(high)})
        painter->drawLine(QLineF(plot.left(), y, plot.right(), y));
}

GraphLinesLayer::GraphLinesLayer(GraphPlot *plot)
    : QCPLayerable(plot, QStringLiteral("lines"))
    , m_plot(plot)
{
}

QRect GraphLinesLayer::clipRect() const
{
    return m_plot->plotRect().adjusted(-symbolMargin, -symbolMargin, symbolMargin, symbolMargin);
}

void GraphLinesLayer::applyDefaultAntialiasingHint(QCPPainter *painter) const
{
    painter->setAntialiasing(true);
}

void GraphLinesLayer::draw(QCPPainter *painter)
{
    for (const GraphLine &line : m_plot->scene().lines) {
        if (line.visible)
            drawLine(painter, line);
    }
}

void GraphLinesLayer::drawLine(QCPPainter *painter, const GraphLine &line) const
{
    const GraphRange &x = m_plot->scene().range(GraphAxis::X);
    const GraphRange &y = m_plot->scene().range(GraphAxis::Y);
    // The largest Y is drawn one pixel above plotRect().
    const QRect plot = m_plot->plotRect().translated(0, -1);
    if (plot.width() < 2 || plot.height() < 2)
        return;
    QPolygonF pixels;
    QPolygonF symbols;
    for (const QPointF &point : decimated(line.points, x.min, x.max, int(plot.width() / columnWidth))) {
        pixels.append(m_plot->toPixels(point));
        // Compare graph units: in pixels, rounding would drop points at the ends of the axes.
        if (x.contains(point.x()) && y.contains(point.y()))
            symbols.append(pixels.last());
    }

    const double width = line.attributes.width;
    const QColor outline = m_plot->look().outlineOf(line.attributes.colour);
    // A level line at the top or bottom edge keeps its full width; at the sides, lines end at the plot's edge.
    const double reach = (width + outlineWidth) / 2;
    const QRectF area = QRectF(plot).adjusted(0, -reach, 1, reach);
    painter->save();
    painter->setClipRect(area);
    const GraphStrokes strokes = strokesOf(pixels, area.adjusted(-width, -width, width, width), columnWidth);
    const auto stroke = [&](const QList<QLineF> &lines, const QColor &colour, double penWidth) {
        painter->setPen(QPen(colour, penWidth, Qt::SolidLine, Qt::SquareCap));
        painter->drawLines(lines);
    };
    if (outline.isValid()) {
        stroke(strokes.segments, outline, width + outlineWidth);
        stroke(strokes.uprights, outline, width + uprightOutlineWidth);
    }
    for (const QRectF &fill : strokes.fills)
        painter->fillRect(fill, line.attributes.colour);
    stroke(strokes.segments, line.attributes.colour, width);
    stroke(strokes.uprights, line.attributes.colour, width);
    painter->restore();
    drawSymbols(painter, line, symbols);
}

void GraphLinesLayer::drawSymbols(QCPPainter *painter, const GraphLine &line, const QPolygonF &places) const
{
    // A single point has no line to show it, so it always gets a symbol.
    GraphSymbol symbol = line.attributes.symbol;
    if (symbol == GraphSymbol::None && line.points.size() == 1)
        symbol = GraphSymbol::Circle;
    if (symbol == GraphSymbol::None)
        return;
    const QColor outline = m_plot->look().outlineOf(line.attributes.colour);
    painter->setPen(QPen(outline.isValid() ? outline : m_plot->look().background, outlineWidth / 2));
    painter->setBrush(line.attributes.colour);
    // Draw all symbols or none: leaving some out would suggest that the others are special.
    const qsizetype gaps = places.size() - 1;
    if (gaps > 0 && places.last().x() - places.first().x() < symbolDistance * double(gaps))
        return;
    for (const QPointF &place : places)
        drawGraphSymbol(*painter, symbol, place);
}

} // namespace brinemark
