// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/MultiLineEdit.h"

#include <QMimeData>

namespace brinemark
{

void MultiLineEdit::insertFromMimeData(const QMimeData *source)
{
    if (source && !source->formats().isEmpty())
        QPlainTextEdit::insertFromMimeData(source);
}

} // namespace brinemark

#include "moc_MultiLineEdit.cpp"
