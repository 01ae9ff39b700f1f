// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/ElidedLabel.h"

#include "ui/TruncatingDelegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace brinemark
{

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

bool ElidedLabel::isTruncated() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QMargins margins = contentsMargins();
    const int dots = fontMetrics().horizontalAdvance(QStringLiteral("\u2026"));
    return {margins.left() + margins.right() + dots, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isTruncated()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), wholeTextToolTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect room = contentsRect();
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(room, int(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}

} // namespace brinemark

#include "moc_ElidedLabel.cpp"
