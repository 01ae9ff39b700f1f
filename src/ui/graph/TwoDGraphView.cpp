// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/TwoDGraphView.h"

#include "base/text/Texts.h"
#include "ui/graph/GraphPlot.h"
#include "ui/graph/TickPositions.h"

#include <QKeyEvent>
#include <QResizeEvent>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <limits>

namespace brinemark
{

namespace
{

constexpr double keyZoom = 0.8;
constexpr double keyMove = 0.1; ///< as a share of the visible range

/// The finite points, sorted by x, which drawing and searching rely on.
QList<QPointF> drawablePoints(QList<QPointF> points)
{
    points.removeIf([](const QPointF &point) { return !std::isfinite(point.x()) || !std::isfinite(point.y()); });
    const auto left = [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); };
    if (!std::is_sorted(points.cbegin(), points.cend(), left))
        std::stable_sort(points.begin(), points.end(), left);
    return points;
}

} // namespace

TwoDGraphView::TwoDGraphView(QWidget *parent)
    : QWidget(parent)
    , m_scene(std::make_unique<GraphScene>())
    , m_plot(new GraphPlot(*m_scene, GraphLook::onScreen(palette(), font()), this))
{
    setObjectName(QStringLiteral("graphView"));
    setAccessibleName(text("GraphViewName"));
    setAccessibleDescription(text("GraphViewDescription"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

TwoDGraphView::~TwoDGraphView() = default;

void TwoDGraphView::setDataSource(const TwoDGraphDataSource *source)
{
    m_source = source;
}

void TwoDGraphView::setDelegate(const TwoDGraphDelegate *delegate)
{
    m_delegate = delegate;
}

void TwoDGraphView::setNumberOfTickMarks(int count, GraphAxis axis)
{
    m_tickMarks[std::size_t(axis)] = std::max(count, 0);
}

void TwoDGraphView::setWholeTickMarks(GraphAxis axis)
{
    m_wholeTickMarks[std::size_t(axis)] = true;
}

bool TwoDGraphView::hasWholeTickMarks(GraphAxis axis) const
{
    const QList<double> &positions = m_scene->ticks[std::size_t(axis)].positions;
    return std::all_of(positions.begin(), positions.end(), [](double value) { return value == std::floor(value); });
}

int TwoDGraphView::tickDigits(GraphAxis axis) const
{
    return significantDigits(m_scene->ticks[std::size_t(axis)].positions);
}

void TwoDGraphView::reloadData()
{
    const auto visibleBefore = m_scene->visible;
    reloadLines();
    reloadRanges();
    showScene();
    if (m_scene->visible != visibleBefore)
        Q_EMIT zoomChanged();
}

void TwoDGraphView::reloadLines()
{
    m_scene->lines.clear();
    const int count = m_source ? m_source->numberOfLinesInTwoDGraphView(*this) : 0;
    for (int i = 0; i < count; ++i) {
        GraphLine line{drawablePoints(m_source->dataForLineIndex(*this, i)), {}, isLineVisible(i)};
        if (m_delegate)
            line.attributes = m_delegate->attributesForLineIndex(*this, i);
        m_scene->lines.append(line);
    }
}

/// Sets the ranges of both axes to include every line.
void TwoDGraphView::reloadRanges()
{
    for (const GraphAxis axis : {GraphAxis::Y, GraphAxis::X}) {
        double min = std::numeric_limits<double>::infinity();
        double max = -min;
        for (int i = 0; i < int(m_scene->lines.size()); ++i) {
            min = std::fmin(min, m_source->minimumValueForLineIndex(*this, i, axis));
            max = std::fmax(max, m_source->maximumValueForLineIndex(*this, i, axis));
        }
        const GraphRange whole = m_scene->lines.isEmpty() ? GraphRange() : drawableRange(min, max);
        if (whole != wholeRange(axis)) {
            m_whole[std::size_t(axis)] = whole;
            m_scene->range(axis) = whole;
        }
    }
}

void TwoDGraphView::reloadTicks(GraphAxis axis)
{
    GraphTicks &ticks = m_scene->ticks[std::size_t(axis)];
    ticks = {tickPositions(m_scene->range(axis), m_tickMarks[std::size_t(axis)], m_wholeTickMarks[std::size_t(axis)]),
             {}};
    for (const double position : ticks.positions) {
        const QString label = QString::number(position, 'g', 15);
        const int index = int(ticks.labels.size());
        ticks.labels.append(m_delegate ? m_delegate->labelForTickMarkIndex(*this, index, axis, label) : label);
    }
}

/// Updates everything that depends on the lines and the visible ranges.
void TwoDGraphView::showScene()
{
    clearMark();
    for (const GraphAxis axis : {GraphAxis::Y, GraphAxis::X})
        reloadTicks(axis);
    showCursor();
    m_plot->sceneChanged();
}

void TwoDGraphView::setLineVisible(int line, bool visible)
{
    if (visible)
        m_hiddenLines.remove(line);
    else
        m_hiddenLines.insert(line);
    if (line < 0 || line >= m_scene->lines.size())
        return;
    m_scene->lines[line].visible = visible;
    clearMark();
    m_plot->sceneChanged();
}

bool TwoDGraphView::isLineVisible(int line) const
{
    return !m_hiddenLines.contains(line);
}

void TwoDGraphView::setHighlightedBand(const std::optional<GraphBand> &band)
{
    m_scene->band = band;
    m_plot->sceneChanged();
}

void TwoDGraphView::resetZoom()
{
    showRanges(wholeRange(GraphAxis::X), wholeRange(GraphAxis::Y));
}

bool TwoDGraphView::isZoomed() const
{
    return m_scene->visible != m_whole;
}

GraphRange TwoDGraphView::visibleRange(GraphAxis axis) const
{
    return m_scene->range(axis);
}

GraphRange TwoDGraphView::wholeRange(GraphAxis axis) const
{
    return m_whole[std::size_t(axis)];
}

QPointF TwoDGraphView::positionOf(QPointF point) const
{
    return m_plot->toPixels(point);
}

void TwoDGraphView::showRanges(const GraphRange &x, const GraphRange &y)
{
    if (x == visibleRange(GraphAxis::X) && y == visibleRange(GraphAxis::Y))
        return;
    m_scene->range(GraphAxis::X) = x;
    m_scene->range(GraphAxis::Y) = y;
    showScene();
    Q_EMIT zoomChanged();
}

void TwoDGraphView::zoom(QPointF position, double factor, Qt::KeyboardModifiers modifiers)
{
    const QPointF anchor = m_plot->fromPixels(position);
    const auto zoomed = [&](GraphAxis axis, double value, Qt::KeyboardModifier otherAxis) {
        const GraphRange &visible = m_scene->range(axis);
        return modifiers & otherAxis ? visible : zoomedRange(visible, wholeRange(axis), value, factor);
    };
    showRanges(zoomed(GraphAxis::X, anchor.x(), Qt::ShiftModifier),
               zoomed(GraphAxis::Y, anchor.y(), Qt::ControlModifier));
}

void TwoDGraphView::moveBy(double x, double y)
{
    showRanges(movedRange(visibleRange(GraphAxis::X), wholeRange(GraphAxis::X), x),
               movedRange(visibleRange(GraphAxis::Y), wholeRange(GraphAxis::Y), y));
}

void TwoDGraphView::pan(QPointF to)
{
    const QPointF way = m_plot->fromPixels(*m_dragFrom) - m_plot->fromPixels(to);
    m_dragFrom = to;
    moveBy(way.x(), way.y());
}

std::optional<TwoDGraphView::PointOfLine> TwoDGraphView::nearestPoint(QPointF position) const
{
    constexpr double reach = 12; // pixels
    std::optional<PointOfLine> nearest;
    double nearestDistance = reach;
    const double from = m_plot->fromPixels(position - QPointF(reach, 0)).x();
    const double to = m_plot->fromPixels(position + QPointF(reach, 0)).x();
    for (int i = 0; i < int(m_scene->lines.size()); ++i) {
        const GraphLine &line = m_scene->lines[i];
        if (!line.visible)
            continue;
        auto point = std::lower_bound(line.points.begin(), line.points.end(), from,
                                      [](const QPointF &p, double x) { return p.x() < x; });
        for (; point != line.points.end() && point->x() <= to; ++point) {
            if (!m_scene->range(GraphAxis::X).contains(point->x()) ||
                !m_scene->range(GraphAxis::Y).contains(point->y()))
                continue;
            const QPointF way = m_plot->toPixels(*point) - position;
            const double distance = std::hypot(way.x(), way.y());
            // At equal distance the later line wins, since it is drawn on top.
            if (distance <= nearestDistance) {
                nearestDistance = distance;
                nearest = {i, *point};
            }
        }
    }
    return nearest;
}

void TwoDGraphView::markPointAt(QPointF position)
{
    const std::optional<PointOfLine> nearest = nearestPoint(position);
    if (!nearest)
        return clearMark();
    m_plot->setMarkedPoint(nearest->point, m_scene->lines[nearest->line].attributes.colour);
    const QString tip = m_delegate ? m_delegate->stringForToolTip(*this, nearest->point, nearest->line) : QString();
    // An empty text hides the previous point's tool tip.
    QToolTip::showText(mapToGlobal(position.toPoint()), tip, this);
}

void TwoDGraphView::clearMark()
{
    if (!m_plot->hasMarkedPoint())
        return;
    m_plot->setMarkedPoint({});
    QToolTip::hideText();
}

void TwoDGraphView::applyLook()
{
    m_plot->setLook(GraphLook::onScreen(palette(), font()));
}

void TwoDGraphView::showCursor()
{
    if (m_dragFrom)
        setCursor(Qt::ClosedHandCursor);
    else if (isZoomed())
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

QSize TwoDGraphView::sizeHint() const
{
    return {640, 400};
}

QSize TwoDGraphView::minimumSizeHint() const
{
    return {240, 160};
}

void TwoDGraphView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange)
        applyLook();
}

void TwoDGraphView::resizeEvent(QResizeEvent *event)
{
    clearMark();
    m_plot->setGeometry(QRect(QPoint(), event->size()));
}

void TwoDGraphView::focusInEvent(QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    m_plot->setFocusShown(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                          reason == Qt::ShortcutFocusReason);
}

void TwoDGraphView::focusOutEvent(QFocusEvent *)
{
    m_plot->setFocusShown(false);
}

void TwoDGraphView::wheelEvent(QWheelEvent *event)
{
    // Some platforms report vertical turns as horizontal ones while a modifier key is held.
    const QPoint turned = event->angleDelta();
    constexpr double notch = 120;
    zoom(event->position(), std::pow(keyZoom, (turned.y() != 0 ? turned.y() : turned.x()) / notch), event->modifiers());
    event->accept();
}

void TwoDGraphView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !isZoomed())
        return QWidget::mousePressEvent(event);
    m_dragFrom = event->position();
    clearMark();
    showCursor();
}

void TwoDGraphView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragFrom && event->buttons() & Qt::LeftButton)
        pan(event->position());
    else
        markPointAt(event->position());
}

void TwoDGraphView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mouseReleaseEvent(event);
    m_dragFrom.reset();
    showCursor();
}

void TwoDGraphView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        resetZoom();
}

void TwoDGraphView::leaveEvent(QEvent *)
{
    clearMark();
}

void TwoDGraphView::keyPressEvent(QKeyEvent *event)
{
    const QPointF centre = QRectF(m_plot->plotRect()).center();
    const double x = visibleRange(GraphAxis::X).length() * keyMove;
    const double y = visibleRange(GraphAxis::Y).length() * keyMove;
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key as plus on many keyboards
        return zoom(centre, keyZoom, {});
    case Qt::Key_Minus:
        return zoom(centre, 1 / keyZoom, {});
    case Qt::Key_0:
        return resetZoom();
    case Qt::Key_Left:
        return moveBy(-x, 0);
    case Qt::Key_Right:
        return moveBy(x, 0);
    case Qt::Key_Up:
        return moveBy(0, y);
    case Qt::Key_Down:
        return moveBy(0, -y);
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace brinemark

#include "moc_TwoDGraphView.cpp"
