// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPageLayout>

#include <functional>
#include <memory>

class QObject;
class QPrinter;
class QWidget;

namespace brinemark
{

/// A printer at its best resolution, with the program's name on the job.
[[nodiscard]] std::shared_ptr<QPrinter> makePrinter(QPageLayout::Orientation orientation);

/// Asks for a printer and its settings with a sheet of the window (object name "printDialog"), then lets `paint` fill
/// the page; beeps when it answers false. Nothing is printed when `owner` is gone by then.
void openPrintSheet(QWidget *window, QPageLayout::Orientation orientation, QObject *owner,
                    std::function<bool(QPrinter &printer)> paint);

} // namespace brinemark
