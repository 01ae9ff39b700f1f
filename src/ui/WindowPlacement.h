// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace brinemark
{

/// Moves a window to the middle of the available area of its screen.
void centreOnScreen(QWidget &window);

/// Shows a window above the others and makes it the active one.
void showInFront(QWidget &window);

} // namespace brinemark
