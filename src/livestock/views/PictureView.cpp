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

void PictureView::setImage(const QImage &image)
{
    m_image = image;
    m_scaled = {};
    update();
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_image.isNull()) {
        icon("Profileplaceholder3").paint(&painter, rect());
        return;
    }
    const qreal ratio = devicePixelRatioF();
    if (m_scaled.isNull() || m_scaled.devicePixelRatio() != ratio) {
        m_scaled = QPixmap::fromImage(m_image.scaled(size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(ratio);
    }
    const QSizeF shown = m_scaled.deviceIndependentSize();
    // At the top, level with the text beside it.
    painter.drawPixmap(QPointF((width() - shown.width()) / 2, 0), m_scaled);
}

} // namespace brinemark

#include "moc_PictureView.cpp"
