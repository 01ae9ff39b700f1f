// What a graph view puts on paper and into files.

#include "base/Log.h"
#include "base/SafeFile.h"
#include "ui/graph/GraphPlot.h"
#include "ui/graph/TwoDGraphView.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>

namespace brinemark
{

namespace
{

constexpr double pixelsPerInch = 96; ///< of the units in which a graph is drawn

} // namespace

QSize TwoDGraphView::drawnSize() const
{
    return size().expandedTo(minimumSizeHint());
}

void TwoDGraphView::render(QPainter *painter, const QRectF &target) const
{
    GraphPlot(*m_scene, GraphLook::onPaper(font())).drawTo(*painter, target);
}

void TwoDGraphView::print(QPrinter &printer) const
{
    QPainter painter;
    if (!painter.begin(&printer)) {
        qCWarning(logApp) << "cannot print a graph on" << printer.printerName();
        return;
    }
    const double scale = printer.resolution() / pixelsPerInch;
    const QSizeF page = printer.pageRect(QPrinter::DevicePixel).size() / scale;
    painter.scale(scale, scale);
    render(&painter, QRectF(QPointF(), QSizeF(drawnSize()).scaled(page, Qt::KeepAspectRatio)));
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
        writer.setTitle(accessibleName());
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
