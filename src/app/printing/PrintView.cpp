// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/printing/PrintView.h"

#include "ui/PrintSheet.h"
#include "ui/pictures/PictureCache.h"

#include <QPainter>
#include <QPrinter>
#include <QWidget>

namespace brinemark
{

namespace
{

bool paintView(QPrinter &printer, QWidget &view)
{
    QPainter painter(&printer);
    if (!painter.isActive())
        return false; // there is no printer, or the file to print to cannot be written
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    const qreal scale = qMin(page.width() / view.width(), page.height() / view.height());
    painter.scale(scale, scale);
    PictureCache::sharedInstance().finishRequests();
    view.render(&painter);
    return true;
}

QPageLayout::Orientation orientationFor(const QWidget &view)
{
    return view.width() > view.height() ? QPageLayout::Landscape : QPageLayout::Portrait;
}

} // namespace

void printView(QWidget *window, QWidget &view)
{
    openPrintSheet(window, orientationFor(view), &view,
                   [&view](QPrinter &printer) { return paintView(printer, view); });
}

bool printViewWithoutDialog(QWidget &view)
{
    return paintView(*makePrinter(orientationFor(view)), view);
}

} // namespace brinemark
