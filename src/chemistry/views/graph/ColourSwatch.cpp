// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/ColourSwatch.h"

#include "ui/Colours.h"

#include <QPainter>

namespace brinemark
{

ColourSwatch::ColourSwatch(const QColor &colour, QWidget *parent)
    : QWidget(parent)
    , m_colour(colour)
{
    constexpr int side = 14;
    setFixedSize(side, side);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ColourSwatch::setFilled(bool filled)
{
    m_filled = filled;
    update();
}

void ColourSwatch::paintEvent(QPaintEvent *)
{
    constexpr double visible = 3; // minimum contrast of graphics with adjacent colours (WCAG 2.1, 1.4.11)
    constexpr double radius = 3;
    constexpr double rim = 2;
    constexpr double stroke = 1.5;
    const bool rimmed = contrast(m_colour, palette().color(QPalette::Window)) < visible;
    const QColor edge = rimmed ? brinemark::colour(ColourRole::SecondaryText, palette()) : m_colour;
    const QRectF tile = QRectF(rect()).adjusted(rim / 2, rim / 2, -rim / 2, -rim / 2);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, m_filled ? rim : stroke));
    painter.setBrush(m_colour);
    if (m_filled)
        painter.drawRoundedRect(tile, radius, radius);
    else
        painter.drawLine(tile.bottomLeft() + QPointF(1, -1), tile.topRight() + QPointF(-1, 1));
}

} // namespace brinemark

#include "moc_ColourSwatch.cpp"
