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

/// A printer at its highest resolution; the print job has the program's name.
[[nodiscard]] std::shared_ptr<QPrinter> makePrinter(QPageLayout::Orientation orientation);

/// Asks for a printer and its settings with a sheet of the window (object name "printDialog"), then calls `paint` to
/// draw the page; beeps when `paint` returns false. Does nothing when `owner` has been destroyed by then.
void openPrintSheet(QWidget *window, QPageLayout::Orientation orientation, QObject *owner,
                    std::function<bool(QPrinter &printer)> paint);

} // namespace brinemark
