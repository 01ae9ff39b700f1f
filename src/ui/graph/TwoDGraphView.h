// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphBand.h"
#include "ui/graph/GraphRange.h"
#include "ui/graph/TwoDGraph.h"

#include <QSet>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QPrinter;

namespace brinemark
{

class GraphPlot;
struct GraphLook;
struct GraphScene;

/// Lines over two axes, which its data source and delegate describe. The wheel zooms around the pointer (with Ctrl the
/// X axis alone, with Shift the Y axis alone), dragging moves the visible part and a double click shows the whole
/// again; with the keyboard +, -, 0 and the arrows do. The nearest point beside the pointer is marked, with a tool tip.
class TwoDGraphView : public QWidget
{
    Q_OBJECT

public:
    explicit TwoDGraphView(QWidget *parent = nullptr);
    ~TwoDGraphView() override;

    /// Not owned; both must live as long as the view or be replaced by null. Nothing is asked before `reloadData()`.
    void setDataSource(const TwoDGraphDataSource *source);
    void setDelegate(const TwoDGraphDelegate *delegate);

    /// So many tick marks, evenly spaced: the first at the minimum of what is visible, the last at its maximum. Every
    /// mark's label is asked of the delegate; those that have no room are left out. 0 for none. Takes effect with the
    /// next `reloadData()`.
    void setNumberOfTickMarks(int count, GraphAxis axis);

    /// Asks the data source and the delegate anew. An axis stays zoomed when its whole range is what it was. Points
    /// that are not finite are left out.
    void reloadData();

    /// Lines are visible unless hidden; that outlasts `reloadData()`.
    void setLineVisible(int line, bool visible);
    [[nodiscard]] bool isLineVisible(int line) const;

    /// Shades a band of values; nothing for none.
    void setHighlightedBand(const std::optional<GraphBand> &band);

    void resetZoom();
    [[nodiscard]] bool isZoomed() const;

    /// What of an axis is visible, and the whole of it.
    [[nodiscard]] GraphRange visibleRange(GraphAxis axis) const;
    [[nodiscard]] GraphRange wholeRange(GraphAxis axis) const;

    /// Where a point in graph units lies in the view's coordinates, which may be outside of it.
    [[nodiscard]] QPointF positionOf(QPointF point) const;

    /// What stands above the graph on paper and in files.
    void setPaperTitle(const QString &title) { m_paperTitle = title; }

    /// Draws what is visible for paper (dark on white, with title and legend) to fill the rectangle; widths and text
    /// are in the painter's units, of which 96 should be an inch.
    void render(QPainter *painter, const QRectF &target) const;
    using QWidget::render;

    /// Fills the printer's page as far as the view's proportions allow. False when it could not be printed.
    [[nodiscard]] bool print(QPrinter &printer) const;

    /// A PNG of twice the view's size, or a PDF of one page. False when it could not be written; the log says why, and
    /// what was at the path before is still there.
    [[nodiscard]] bool saveImage(const QString &path) const;
    [[nodiscard]] bool savePdf(const QString &path) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another part of the axes is visible, or the same part of other axes.
    void zoomChanged();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct PointOfLine {
        int line;
        QPointF point;
    };

    void reloadLines();
    void reloadRanges();
    void reloadTicks(GraphAxis axis);
    void showScene();
    void showRanges(const GraphRange &x, const GraphRange &y);
    void zoom(QPointF position, double factor, Qt::KeyboardModifiers modifiers);
    void moveBy(double x, double y);
    void pan(QPointF to);
    void applyLook();
    void showCursor();
    [[nodiscard]] std::optional<PointOfLine> nearestPoint(QPointF position) const;
    void markPointAt(QPointF position);
    void clearMark();
    [[nodiscard]] QSize drawnSize() const;

    const TwoDGraphDataSource *m_source = nullptr;
    const TwoDGraphDelegate *m_delegate = nullptr;
    std::array<int, 2> m_tickMarks{0, 0}; ///< by axis
    std::array<GraphRange, 2> m_whole;    ///< by axis
    QSet<int> m_hiddenLines;
    QString m_paperTitle;
    std::unique_ptr<GraphScene> m_scene;
    GraphPlot *m_plot;
    std::optional<QPointF> m_dragFrom; ///< the position of the last drag event
};

} // namespace brinemark
