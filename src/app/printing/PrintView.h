// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace brinemark
{

/// Asks for a printer with a sheet of the window and prints the view, fitted to one page.
void printView(QWidget *window, QWidget &view);

/// Prints the view on the default printer without asking; false when that is not possible.
bool printViewWithoutDialog(QWidget &view);

} // namespace brinemark
