// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QKeyEvent>

namespace brinemark
{

/// Whether the key is Return or Enter, on its own.
[[nodiscard]] inline bool isPlainReturn(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace brinemark
