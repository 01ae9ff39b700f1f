// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QDialog;
class QWidget;

namespace brinemark
{

/// Opens `sheet` window-modally, centred over the window that holds `window`, and returns at once. While that window
/// shows another sheet, `sheet` waits. When the window moves, the sheet goes with it, unless it was moved away. The
/// caller keeps the ownership; destroying a sheet removes it from the queue.
void openSheet(QWidget *window, QDialog *sheet);

/// Centres `dialog`, which must not be shown yet, over the window that holds `window`, within the screen. The dialog is
/// first given its preferred size, and a minimised window is brought back.
void centreOver(QWidget *window, QDialog *dialog);

/// The same, but the dialog keeps its size.
void moveOver(QWidget *window, QDialog *dialog);

} // namespace brinemark
