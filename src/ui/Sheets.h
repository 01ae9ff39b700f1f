// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QDialog;
class QWidget;

namespace brinemark
{

/// Opens `sheet` window-modally, centred over the window that holds `window`, and returns at once. While that window
/// shows another sheet it waits for its turn. The caller keeps the ownership; a sheet that is deleted gives up its
/// turn.
void openSheet(QWidget *window, QDialog *sheet);

/// Moves `dialog`, which is not shown yet, over the middle of the window that holds `window`, within the screen.
void centreOver(QWidget *window, QDialog *dialog);

/// The same for a dialog whose size is as it should be.
void moveOver(QWidget *window, QDialog *dialog);

} // namespace brinemark
