// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/saving/SafeFile.h"
#include "ui/OwnedWidget.h"
#include "ui/graph/GraphBand.h"
#include "ui/graph/GraphHeading.h"
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

/// Draws lines over two axes, as a data source and a delegate describe them. The wheel zooms around the pointer (with
/// Ctrl only the X axis, with Shift only the Y axis), dragging moves the visible part, and a double click shows
/// everything again; the keys +, -, 0 and the arrows do the same. The point nearest to the pointer is marked and has a
/// tool tip.
class TwoDGraphView : public QWidget
{
    Q_OBJECT

public:
    explicit TwoDGraphView(QWidget *parent = nullptr);
    ~TwoDGraphView() override;

    /// Neither is owned; each must outlive the view or be set to null first. They are not called before `reloadData()`.
    void setDataSource(const TwoDGraphDataSource *source);
    void setDelegate(const TwoDGraphDelegate *delegate);

    /// The greatest number of tick marks; 0 for none. They stand at round values of the visible range
    /// (tickPositions()), fewer of them where the next finer distance would need more. The delegate supplies the
    /// labels; labels that do not fit are left out. Takes effect at the next `reloadData()`.
    void setNumberOfTickMarks(int count, GraphAxis axis);

    /// From the next `reloadData()` on, places tick marks at whole numbers only, as long as two of them are visible.
    void setWholeTickMarks(GraphAxis axis);

    /// Whether every visible tick mark stands at a whole number.
    [[nodiscard]] bool hasWholeTickMarks(GraphAxis axis) const;

    /// How many significant digits state the value of every visible tick mark exactly.
    [[nodiscard]] int tickDigits(GraphAxis axis) const;

    /// Asks the data source and the delegate again. An axis keeps its zoom when its whole range is unchanged. Points
    /// that are not finite are left out.
    void reloadData();

    /// Hides or shows a line. Hidden lines stay hidden after `reloadData()`.
    void setLineVisible(int line, bool visible);
    [[nodiscard]] bool isLineVisible(int line) const;

    /// Shades a band of values; nullopt removes it.
    void setHighlightedBand(const std::optional<GraphBand> &band);

    void resetZoom();
    [[nodiscard]] bool isZoomed() const;

    /// The visible part and the whole range of an axis.
    [[nodiscard]] GraphRange visibleRange(GraphAxis axis) const;
    [[nodiscard]] GraphRange wholeRange(GraphAxis axis) const;

    /// The position of a point (in graph units) in widget coordinates; it may lie outside the widget.
    [[nodiscard]] QPointF positionOf(QPointF point) const;

    /// What stands above the graph on paper and in files. A long title does not shorten the subtitle.
    void setPaperHeading(const GraphHeading &heading) { m_paperHeading = heading; }
    [[nodiscard]] const GraphHeading &paperHeading() const { return m_paperHeading; }

    /// The name below the X axis on paper and in files.
    void setPaperAxisName(const QString &name) { m_paperAxisName = name; }

    /// Draws the visible part for paper (dark on white, with heading and legend) to fill the rectangle. Line widths and
    /// text sizes are in the painter's units, of which 96 should make an inch.
    void render(QPainter *painter, const QRectF &target) const;
    using QWidget::render;

    /// Draws the visible part over a whole page, whose size is in units of 1/96 inch, as are the painter's. Text keeps
    /// its size relative to the graph, within the sizes that are good to read on paper.
    void renderPage(QPainter *painter, const QSizeF &page) const;

    /// Prints the graph over the whole page. False when printing fails.
    [[nodiscard]] bool print(QPrinter &printer) const;

    /// Writes a PNG of twice the view's size, or a PDF of one page, by writeFileSafely().
    [[nodiscard]] WriteResult saveImage(const QString &path) const;
    [[nodiscard]] WriteResult savePdf(const QString &path) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The visible range changed, or the whole range that it belongs to.
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
    std::array<bool, 2> m_wholeTickMarks{false, false};
    std::array<GraphRange, 2> m_whole; ///< by axis
    QSet<int> m_hiddenLines;
    GraphHeading m_paperHeading;
    QString m_paperAxisName;
    std::unique_ptr<GraphScene> m_scene;
    OwnedWidget<GraphPlot> m_plot;     ///< refers to the scene
    std::optional<QPointF> m_dragFrom; ///< where the last drag event was
};

} // namespace brinemark
