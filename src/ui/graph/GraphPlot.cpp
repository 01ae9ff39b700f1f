// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/GraphPlot.h"

#include "ui/graph/GraphLayers.h"

#include <QPicture>

#include <cmath>

namespace brinemark
{

namespace
{

constexpr int tickLength = 4;
constexpr int tickPadding = 4;
constexpr int axisNamePadding = 4;
constexpr int plotMargin = 8; ///< around the axes and their labels, in pixels

double widest(const QStringList &labels, const QFontMetricsF &metrics)
{
    double width = 0;
    for (const QString &label : labels)
        width = std::max(width, metrics.horizontalAdvance(label));
    return width;
}

/// The interval between tick marks that get a label, so that labels do not overlap.
int labelStep(double axisLength, qsizetype ticks, double labelLength)
{
    if (ticks < 2 || axisLength <= 0)
        return 1;
    const double distance = axisLength / double(ticks - 1);
    return std::clamp(int(std::ceil(labelLength / distance)), 1, int(ticks));
}

void fillTicker(QCPAxisTickerText &ticker, const GraphTicks &ticks, int step)
{
    ticker.clear();
    for (qsizetype i = 0; i < ticks.positions.size(); ++i)
        ticker.addTick(ticks.positions[i], i % step == 0 ? ticks.labels[i] : QString());
}

} // namespace

GraphPlot::GraphPlot(const GraphScene &scene, const GraphLook &look, QWidget *parent)
    : QCustomPlot(parent)
    , m_scene(scene)
    , m_look(look)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    axisRect()->setAutoMargins(QCP::msNone);
    addLayer(QStringLiteral("lines"), layer(QStringLiteral("axes")));
    new GraphBandLayer(this);
    new GraphLinesLayer(this);
    const std::array axes{yAxis, xAxis};
    for (std::size_t i = 0; i < axes.size(); ++i) {
        m_tickers[i].reset(new QCPAxisTickerText);
        axes[i]->setTicker(m_tickers[i]);
        axes[i]->setTickLength(0, tickLength);
        axes[i]->setTickLabelPadding(tickPadding);
        axes[i]->setLabelPadding(axisNamePadding);
        axes[i]->setSubTicks(false);
        axes[i]->setNumberFormat(QStringLiteral("g")); // labels such as 1e+06 are shown as given
        axes[i]->grid()->setZeroLinePen(Qt::NoPen);
    }
    applyLook();
    sceneChanged();
}

void GraphPlot::setLook(const GraphLook &look)
{
    m_look = look;
    applyLook();
    sceneChanged();
}

void GraphPlot::applyLook()
{
    setBackground(QBrush(m_look.background));
    for (QCPAxis *axis : {xAxis, yAxis}) {
        axis->setBasePen(QPen(m_look.axis, 1));
        axis->setTickPen(QPen(m_look.axis, 1));
        axis->setTickLabelColor(m_look.text);
        axis->setTickLabelFont(m_look.font);
        axis->setLabelColor(m_look.text);
        axis->setLabelFont(m_look.font);
        axis->grid()->setPen(QPen(m_look.grid, 1));
    }
}

void GraphPlot::setXAxisName(const QString &name)
{
    xAxis->setLabel(name);
    sceneChanged();
}

double GraphPlot::axisNameHeight(const QString &name, const GraphLook &look)
{
    return name.isEmpty() ? 0 : QFontMetricsF(look.font).height() + axisNamePadding;
}

void GraphPlot::sceneChanged()
{
    const GraphRange &x = m_scene.range(GraphAxis::X);
    const GraphRange &y = m_scene.range(GraphAxis::Y);
    xAxis->setRange(x.min, x.max);
    yAxis->setRange(y.min, y.max);
    placeAxes(size());
    updateLayout(); // so that toPixels() is right before the next paint event
    m_stale = true;
    update();
}

/// Sets the margins so that no label is cut off, and leaves out labels that would overlap.
void GraphPlot::placeAxes(QSize size)
{
    const QFontMetricsF metrics(m_look.font);
    const GraphTicks &x = m_scene.ticks[std::size_t(GraphAxis::X)];
    const GraphTicks &y = m_scene.ticks[std::size_t(GraphAxis::Y)];
    const auto halfWidth = [&](const QString &label) { return metrics.horizontalAdvance(label) / 2; };
    const double beside = tickLength + tickPadding;
    const double left = std::max(beside + widest(y.labels, metrics), x.labels.isEmpty() ? 0 : halfWidth(x.labels[0]));
    const double right = x.labels.isEmpty() ? 0 : halfWidth(x.labels.last());
    const QMargins margins(int(std::ceil(left)) + plotMargin, int(std::ceil(metrics.height() / 2)) + plotMargin / 2,
                           int(std::ceil(right)) + plotMargin,
                           int(std::ceil(beside + metrics.height() + axisNameHeight(xAxis->label(), m_look))) +
                               plotMargin / 2);
    axisRect()->setMargins(margins);
    const QSize plot = size.shrunkBy(margins);
    fillTicker(*m_tickers[std::size_t(GraphAxis::X)], x,
               labelStep(plot.width(), x.positions.size(), widest(x.labels, metrics) + plotMargin));
    fillTicker(*m_tickers[std::size_t(GraphAxis::Y)], y,
               labelStep(plot.height(), y.positions.size(), metrics.height()));
}

QRect GraphPlot::plotRect() const
{
    return axisRect()->rect();
}

QPointF GraphPlot::toPixels(QPointF point) const
{
    return {xAxis->coordToPixel(point.x()), yAxis->coordToPixel(point.y())};
}

QPointF GraphPlot::fromPixels(QPointF position) const
{
    return {xAxis->pixelToCoord(position.x()), yAxis->pixelToCoord(position.y())};
}

void GraphPlot::setMarkedPoint(std::optional<QPointF> point, const QColor &colour)
{
    m_marked = point;
    m_markColour = colour;
    update();
}

void GraphPlot::setFocusShown(bool shown)
{
    m_focusShown = shown;
    update();
}

void GraphPlot::drawTo(QPainter &painter, const QRectF &target)
{
    const QSize size = target.size().toSize();
    QPicture picture;
    QCPPainter recorder(&picture);
    recorder.setMode(QCPPainter::pmVectorized);
    placeAxes(size);
    toPainter(&recorder, size.width(), size.height());
    recorder.end();

    painter.save();
    painter.translate(target.topLeft());
    // A QPicture scales with the resolution of the device that it is played on; undo that, so that the painter's units
    // count.
    painter.scale(double(picture.logicalDpiX()) / painter.device()->logicalDpiX(),
                  double(picture.logicalDpiY()) / painter.device()->logicalDpiY());
    picture.play(&painter);
    painter.restore();
}

void GraphPlot::paintEvent(QPaintEvent *event)
{
    // The window may have moved to a screen with another resolution.
    if (!qFuzzyCompare(bufferDevicePixelRatio(), devicePixelRatioF())) {
        setBufferDevicePixelRatio(devicePixelRatioF());
        m_stale = true;
    }
    if (m_stale) {
        m_stale = false;
        replot(rpQueuedRefresh);
    }
    QCustomPlot::paintEvent(event);
    QPainter painter(this);
    if (m_focusShown) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    paintMark(painter);
}

void GraphPlot::paintMark(QPainter &painter) const
{
    if (!m_marked)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = toPixels(*m_marked) + QPointF(0.5, 0.5);
    for (const auto &[colour, width] : {std::pair{m_look.background, 4.0}, std::pair{m_look.text, 1.5}}) {
        painter.setPen(QPen(colour, width));
        painter.drawEllipse(centre, 6, 6);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_markColour);
    painter.drawEllipse(centre, 3.5, 3.5);
}

void GraphPlot::resizeEvent(QResizeEvent *)
{
    setViewport(rect());
    sceneChanged();
}

} // namespace brinemark

#include "moc_GraphPlot.cpp"
