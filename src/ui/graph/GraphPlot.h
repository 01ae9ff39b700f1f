// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphLook.h"
#include "ui/graph/GraphScene.h"
#include "ui/graph/QCustomPlotLibrary.h"

#include <array>
#include <optional>

namespace brinemark
{

/// Draws a scene: axes, grid, band and lines. Takes no events; the view above it does.
class GraphPlot : public QCustomPlot
{
    Q_OBJECT

public:
    /// The scene must live as long as the plot. After a change of it call `sceneChanged()`.
    explicit GraphPlot(const GraphScene &scene, const GraphLook &look, QWidget *parent = nullptr);

    [[nodiscard]] const GraphScene &scene() const { return m_scene; }
    [[nodiscard]] const GraphLook &look() const { return m_look; }
    void setLook(const GraphLook &look);

    /// Takes over ranges and ticks and draws again with the next paint event.
    void sceneChanged();

    /// The area between the axes, in the widget's coordinates.
    [[nodiscard]] QRect plotRect() const;
    [[nodiscard]] QPointF toPixels(QPointF point) const;
    [[nodiscard]] QPointF fromPixels(QPointF position) const;

    /// A ring around a point in graph units, in its line's colour.
    [[nodiscard]] bool hasMarkedPoint() const { return m_marked.has_value(); }
    void setMarkedPoint(std::optional<QPointF> point, const QColor &colour = {});

    /// The frame that says where the keyboard is.
    void setFocusShown(bool shown);

    /// Draws the scene to fill `target`, as vectors; the painter's units are the pixels in which widths are given.
    void drawTo(QPainter &painter, const QRectF &target);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void applyLook();
    void placeAxes(QSize size);
    void paintMark(QPainter &painter) const;

    const GraphScene &m_scene;
    GraphLook m_look;
    std::array<QSharedPointer<QCPAxisTickerText>, 2> m_tickers; ///< by axis
    std::optional<QPointF> m_marked;
    QColor m_markColour;
    bool m_focusShown = false;
    bool m_stale = true; ///< the buffers show another scene
};

} // namespace brinemark
