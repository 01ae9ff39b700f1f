// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/QCustomPlotLibrary.h"

namespace brinemark
{

class GraphPlot;
struct GraphBand;
struct GraphLine;

/// The shaded band, drawn beneath the grid.
class GraphBandLayer : public QCPLayerable
{
public:
    explicit GraphBandLayer(GraphPlot *plot);

protected:
    QRect clipRect() const override;
    void applyDefaultAntialiasingHint(QCPPainter *painter) const override;
    void draw(QCPPainter *painter) override;

private:
    GraphPlot *m_plot;
};

/// The lines with their symbols, drawn above the axes.
class GraphLinesLayer : public QCPLayerable
{
public:
    explicit GraphLinesLayer(GraphPlot *plot);

protected:
    QRect clipRect() const override;
    void applyDefaultAntialiasingHint(QCPPainter *painter) const override;
    void draw(QCPPainter *painter) override;

private:
    void drawLine(QCPPainter *painter, const GraphLine &line) const;
    void drawSymbols(QCPPainter *painter, const GraphLine &line, const QPolygonF &places) const;

    GraphPlot *m_plot;
};

} // namespace brinemark
