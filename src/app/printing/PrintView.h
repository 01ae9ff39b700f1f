// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace brinemark
{

/// Asks for a printer with a sheet of the window and prints what the view shows, fitted to one page.
void printView(QWidget *window, QWidget &view);

/// The same to the standard printer at once; false when there is none.
bool printViewWithoutDialog(QWidget &view);

} // namespace brinemark
