// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/WindowPlacement.h"

#include <QScreen>
#include <QWidget>

namespace brinemark
{

void centreOnScreen(QWidget &window)
{
    const QRect area = window.screen()->availableGeometry();
    QRect frame(QPoint(), window.frameSize());
    frame.moveCenter(area.center());
    window.move(frame.topLeft());
}

void showInFront(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace brinemark
