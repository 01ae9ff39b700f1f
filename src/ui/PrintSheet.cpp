// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/PrintSheet.h"

#include "base/Product.h"
#include "ui/Alerts.h"
#include "ui/Sheets.h"

#include <QPrintDialog>
#include <QPrinter>

namespace brinemark
{

std::shared_ptr<QPrinter> makePrinter(QPageLayout::Orientation orientation)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(QLatin1String(product::name));
    printer->setPageOrientation(orientation);
    return printer;
}

void openPrintSheet(QWidget *window, QPageLayout::Orientation orientation, QObject *owner,
                    std::function<bool(QPrinter &)> paint)
{
    const std::shared_ptr<QPrinter> printer = makePrinter(orientation);
    auto *dialog = new QPrintDialog(printer.get(), window);
    dialog->setObjectName(QStringLiteral("printDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, owner, [printer, paint = std::move(paint)] {
        if (!paint(*printer))
            beep();
    });
    // This connection keeps the printer alive as long as the dialog, which uses it.
    QObject::connect(dialog, &QObject::destroyed, [printer] {});
    openSheet(window, dialog);
}

} // namespace brinemark
