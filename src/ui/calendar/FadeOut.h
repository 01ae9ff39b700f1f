// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace brinemark
{

/// Leaves a picture of a window that closes at its place and fades it out. The picture takes neither mouse nor keys and
/// goes by itself, or with its parent. Nothing is shown where the desktop's style has animations turned off.
void fadeOut(QWidget &window, QWidget *parent);

} // namespace brinemark
