// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/PictureView.h"

#include "ui/Icons.h"

#include <QPainter>

namespace brinemark
{

PictureView::PictureView(const QSize &size, QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(size);
}

void PictureView::setPicture(const ItemImage &picture)
{
    const bool same = picture.identity() == m_picture.identity();
    m_picture = picture;
    if (same)
        return;
    m_shown = {};
    m_request = nullptr;
    if (!picture.isNone())
        requestPicture();
    update();
}

void PictureView::requestPicture()
{
    m_requestedRatio = devicePixelRatioF();
    m_request = PictureCache::sharedInstance().request(m_picture, size() * m_requestedRatio,
                                                       [this, ratio = m_requestedRatio](const QImage &image) {
                                                           m_shown = image;
                                                           m_shown.setDevicePixelRatio(ratio);
                                                           m_request = nullptr;
                                                           update();
                                                           Q_EMIT decoded(!image.isNull());
                                                       });
}

void PictureView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (!m_picture.isNone())
        requestPicture();
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (showsPlaceholder()) {
        icon("Profileplaceholder3").paint(&painter, rect());
        return;
    }
    if (m_requestedRatio != devicePixelRatioF()) // the window was moved to another screen
        requestPicture();
    const QSizeF shown = m_shown.deviceIndependentSize();
    // At the top, level with the text beside it.
    painter.drawImage(QPointF((width() - shown.width()) / 2, 0), m_shown);
}

} // namespace brinemark

#include "moc_PictureView.cpp"
