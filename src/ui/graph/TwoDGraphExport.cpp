// SPDX-License-Identifier: GPL-3.0-or-later

// Printing and exporting a TwoDGraphView.

#include "base/Log.h"
#include "base/saving/SafeFile.h"
#include "ui/graph/GraphKey.h"
#include "ui/graph/GraphPlot.h"
#include "ui/graph/TwoDGraphView.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

constexpr double pixelsPerInch = 96; ///< resolution of the units in which a graph is drawn

/// How much a printed graph may be magnified: text has some 10 points on the screen, and should have 8 to 12 on paper.
constexpr double leastOnPaper = 0.8;
constexpr double mostOnPaper = 1.2;

WriteResult notDrawn(const QString &path)
{
    qCWarning(logFile) << "cannot draw the graph for" << path;
    WriteResult result;
    result.error = QStringLiteral("drawing");
    return result;
}

} // namespace

/// The size on paper in pixels: that of the graph on the screen plus the heading, the name of the axis and the legend.
QSize TwoDGraphView::drawnSize() const
{
    const QSize graph = size().expandedTo(minimumSizeHint());
    const GraphLook look = GraphLook::onPaper(font());
    const GraphKey key(*m_scene, look, m_paperHeading, graph.width());
    const double axisName = GraphPlot::axisNameHeight(m_paperAxisName, look);
    return graph + QSize(0, int(std::ceil(key.headingHeight() + axisName + key.legendHeight())));
}

void TwoDGraphView::render(QPainter *painter, const QRectF &target) const
{
    const GraphLook look = GraphLook::onPaper(font());
    const GraphKey key(*m_scene, look, m_paperHeading, target.width());
    key.drawTo(*painter, target);
    GraphPlot plot(*m_scene, look);
    plot.setXAxisName(m_paperAxisName);
    plot.drawTo(*painter, target.adjusted(0, key.headingHeight(), 0, -key.legendHeight()));
}

void TwoDGraphView::renderPage(QPainter *painter, const QSizeF &page) const
{
    const QSize drawn = drawnSize();
    const double magnified =
        std::clamp(std::min(page.width() / drawn.width(), page.height() / drawn.height()), leastOnPaper, mostOnPaper);
    painter->save();
    painter->scale(magnified, magnified);
    render(painter, QRectF(QPointF(), page / magnified));
    painter->restore();
}

bool TwoDGraphView::print(QPrinter &printer) const
{
    QPainter painter;
    if (!painter.begin(&printer)) {
        qCWarning(logApp) << "cannot print a graph on" << printer.printerName();
        return false;
    }
    const double scale = printer.resolution() / pixelsPerInch;
    painter.scale(scale, scale);
    renderPage(&painter, printer.pageRect(QPrinter::DevicePixel).size() / scale);
    return painter.end() && printer.printerState() != QPrinter::Error;
}

WriteResult TwoDGraphView::saveImage(const QString &path) const
{
    constexpr int scale = 2;
    QImage image(drawnSize() * scale, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(scale * pixelsPerInch / 0.0254));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QPainter painter(&image);
    painter.scale(scale, scale);
    render(&painter, QRectF(QPointF(), drawnSize()));
    painter.end();
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return notDrawn(path);
    return writeFileSafely(path, buffer.data());
}

WriteResult TwoDGraphView::savePdf(const QString &path) const
{
    constexpr double pointsPerInch = 72;
    QBuffer buffer;
    QPainter painter;
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(m_paperHeading.title.isEmpty() ? accessibleName() : m_paperHeading.title);
        writer.setPageMargins({});
        writer.setPageSize(QPageSize(QSizeF(drawnSize()) * (pointsPerInch / pixelsPerInch), QPageSize::Point));
        writer.setResolution(1200);
        if (!buffer.open(QIODevice::WriteOnly) || !painter.begin(&writer))
            return notDrawn(path);
        painter.scale(writer.resolution() / pixelsPerInch, writer.resolution() / pixelsPerInch);
        render(&painter, QRectF(QPointF(), drawnSize()));
        painter.end();
    }
    return writeFileSafely(path, buffer.data());
}

} // namespace brinemark
