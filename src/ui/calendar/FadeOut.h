// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace brinemark
{

/// Replaces a window that closes by a picture of it and fades the picture out. The picture ignores mouse and keys and
/// deletes itself, at the latest with its parent. Nothing is shown when the desktop's style has animations turned off.
void fadeOut(QWidget &window, QWidget *parent);

} // namespace brinemark
