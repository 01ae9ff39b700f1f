// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/CustomThumbImageView.h"

#include "base/text/Texts.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolTip>

namespace brinemark
{

CustomThumbImageView::CustomThumbImageView(const QSize &size, QWidget *parent)
    : PictureView(size, parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

bool CustomThumbImageView::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return PictureView::event(event);
    // What a click does changes when the picture turns out not to be readable.
    const TextKey key = showsPlaceholder() ? "SearchImagesOnline"_key : "ShowPicturePage"_key;
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text(key), this);
    return true;
}

void CustomThumbImageView::paintEvent(QPaintEvent *event)
{
    PictureView::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

void CustomThumbImageView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT clicked();
    else
        PictureView::keyPressEvent(event);
}

void CustomThumbImageView::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void CustomThumbImageView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        Q_EMIT clicked();
}

} // namespace brinemark

#include "moc_CustomThumbImageView.cpp"
