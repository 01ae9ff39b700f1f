// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QAbstractItemView;
class QWidget;

namespace brinemark
{

/// Closes the item editor that has the focus in `window` and stores its text, as clicking elsewhere would. Commands
/// such as save, print and quit call it first, so that they include the text being typed.
void finishTyping(const QWidget *window);

/// The same for one view. Call it before the view's rows are rebuilt, which destroys an open editor.
void finishTypingIn(QAbstractItemView &view);

} // namespace brinemark
