// SPDX-License-Identifier: GPL-3.0-or-later

// Printing and exporting a TwoDGraphView.

#include "base/Log.h"
#include "base/SafeFile.h"
#include "ui/graph/GraphKey.h"
#include "ui/graph/GraphPlot.h"
#include "ui/graph/TwoDGraphView.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>

#include <cmath>

namespace brinemark
{

namespace
{

constexpr double pixelsPerInch = 96; ///< resolution of the units in which a graph is drawn

} // namespace

/// The size on paper in pixels: that of the graph on the screen plus the title and the legend.
QSize TwoDGraphView::drawnSize() const
{
    const QSize graph = size().expandedTo(minimumSizeHint());
    const GraphKey key(*m_scene, GraphLook::onPaper(font()), m_paperTitle, graph.width());
    return graph + QSize(0, int(std::ceil(key.titleHeight() + key.legendHeight())));
}

void TwoDGraphView::render(QPainter *painter, const QRectF &target) const
{
    const GraphLook look = GraphLook::onPaper(font());
    const GraphKey key(*m_scene, look, m_paperTitle, target.width());
    key.drawTo(*painter, target);
    GraphPlot(*m_scene, look).drawTo(*painter, target.adjusted(0, key.titleHeight(), 0, -key.legendHeight()));
}

bool TwoDGraphView::print(QPrinter &printer) const
{
    QPainter painter;
    if (!painter.begin(&printer)) {
        qCWarning(logApp) << "cannot print a graph on" << printer.printerName();
        return false;
    }
    const double scale = printer.resolution() / pixelsPerInch;
    const QSizeF page = printer.pageRect(QPrinter::DevicePixel).size() / scale;
    painter.scale(scale, scale);
    render(&painter, QRectF(QPointF(), QSizeF(drawnSize()).scaled(page, Qt::KeepAspectRatio)));
    return painter.end() && printer.printerState() != QPrinter::Error;
}

bool TwoDGraphView::saveImage(const QString &path) const
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
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
        qCWarning(logFile) << "cannot encode the picture of a graph for" << path;
        return false;
    }
    return writeFileSafely(path, buffer.data()).ok;
}

bool TwoDGraphView::savePdf(const QString &path) const
{
    constexpr double pointsPerInch = 72;
    QBuffer buffer;
    QPainter painter;
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(m_paperTitle.isEmpty() ? accessibleName() : m_paperTitle);
        writer.setPageMargins({});
        writer.setPageSize(QPageSize(QSizeF(drawnSize()) * (pointsPerInch / pixelsPerInch), QPageSize::Point));
        writer.setResolution(1200);
        if (!buffer.open(QIODevice::WriteOnly) || !painter.begin(&writer)) {
            qCWarning(logFile) << "cannot draw the page of a graph for" << path;
            return false;
        }
        painter.scale(writer.resolution() / pixelsPerInch, writer.resolution() / pixelsPerInch);
        render(&painter, QRectF(QPointF(), drawnSize()));
        painter.end();
    }
    return writeFileSafely(path, buffer.data()).ok;
}

} // namespace brinemark
