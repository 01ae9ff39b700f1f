#include "app/printing/PrintView.h"

#include "base/Product.h"
#include "ui/Alerts.h"
#include "ui/Sheets.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QWidget>

#include <memory>

namespace brinemark
{

namespace
{

bool paintView(QPrinter &printer, QWidget &view)
{
    QPainter painter(&printer);
    if (!painter.isActive())
        return false; // no printer, or the file to print to cannot be written
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    const qreal scale = qMin(page.width() / view.width(), page.height() / view.height());
    painter.scale(scale, scale);
    view.render(&painter);
    return true;
}

std::shared_ptr<QPrinter> makePrinter(const QWidget &view)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(QLatin1String(product::name));
    printer->setPageOrientation(view.width() > view.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    return printer;
}

} // namespace

void printView(QWidget *window, QWidget &view)
{
    const std::shared_ptr<QPrinter> printer = makePrinter(view);
    auto *dialog = new QPrintDialog(printer.get(), window);
    dialog->setObjectName(QStringLiteral("printDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, &view, [printer, &view] {
        if (!paintView(*printer, view))
            beep();
    });
    QObject::connect(dialog, &QObject::destroyed, &view,
                     [printer] {}); // the dialog works on the printer until it is gone
    openSheet(window, dialog);
}

bool printViewWithoutDialog(QWidget &view)
{
    return paintView(*makePrinter(view), view);
}

} // namespace brinemark
