// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphLook.h"
#include "ui/graph/GraphScene.h"
#include "ui/graph/QCustomPlotLibrary.h"

#include <array>
#include <optional>

namespace brinemark
{

/// Draws a scene: axes, grid, band and lines. Mouse and keys are handled by the view above it.
class GraphPlot : public QCustomPlot
{
    Q_OBJECT

public:
    /// The scene must outlive the plot. Call `sceneChanged()` after changing it.
    explicit GraphPlot(const GraphScene &scene, const GraphLook &look, QWidget *parent = nullptr);

    [[nodiscard]] const GraphScene &scene() const { return m_scene; }
    [[nodiscard]] const GraphLook &look() const { return m_look; }
    void setLook(const GraphLook &look);

    /// Shows a name below the labels of the X axis; empty for none.
    void setXAxisName(const QString &name);
    /// The height that such a name takes; 0 for an empty one.
    [[nodiscard]] static double axisNameHeight(const QString &name, const GraphLook &look);

    /// Applies the scene's ranges and ticks and redraws at the next paint event.
    void sceneChanged();

    /// The area between the axes, in widget coordinates.
    [[nodiscard]] QRect plotRect() const;
    [[nodiscard]] QPointF toPixels(QPointF point) const;
    [[nodiscard]] QPointF fromPixels(QPointF position) const;

    /// A ring around a point (in graph units), drawn in the colour of the point's line.
    [[nodiscard]] bool hasMarkedPoint() const { return m_marked.has_value(); }
    void setMarkedPoint(std::optional<QPointF> point, const QColor &colour = {});

    /// Shows or hides the frame that marks the keyboard focus.
    void setFocusShown(bool shown);

    /// Draws the scene to fill `target`, as vectors; line widths in pixels become units of the painter.
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
    bool m_stale = true; ///< the paint buffers do not show the current scene
};

} // namespace brinemark
