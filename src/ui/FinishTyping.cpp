// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/FinishTyping.h"

#include <QAbstractItemView>
#include <QApplication>

namespace brinemark
{

void finishTyping(const QWidget *window)
{
    QWidget *focused = QApplication::focusWidget();
    if (!focused || !window || focused->window() != window)
        return;
    for (QWidget *parent = focused->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *view = qobject_cast<QAbstractItemView *>(parent)) {
            view->setFocus(); // losing the focus makes the view's delegate store what is in the editor
            return;
        }
    }
}

} // namespace brinemark
