// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/FinishTyping.h"

#include <QAbstractItemView>
#include <QApplication>

namespace brinemark
{

void finishTyping(const QWidget *window)
{
    const QWidget *focused = QApplication::focusWidget();
    if (!focused || !window || focused->window() != window)
        return;
    for (QWidget *parent = focused->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *view = qobject_cast<QAbstractItemView *>(parent)) {
            finishTypingIn(*view);
            return;
        }
    }
}

void finishTypingIn(QAbstractItemView &view)
{
    const QWidget *focused = QApplication::focusWidget();
    if (focused && focused != view.viewport() && view.viewport()->isAncestorOf(focused))
        view.setFocus(); // the delegate stores the text of an editor that loses the focus
}

} // namespace brinemark
