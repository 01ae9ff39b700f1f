// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/SpinningIndicator.h"

#include <QPainter>

namespace brinemark
{

namespace
{

constexpr int spokes = 10;

} // namespace

SpinningIndicator::SpinningIndicator(QWidget *parent)
    : QWidget(parent)
{
    constexpr int side = 18;
    constexpr std::chrono::milliseconds aSpoke{80};
    setFixedSize(side, side);
    m_timer.setInterval(aSpoke);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_turn = (m_turn + 1) % spokes;
        update();
    });
}

void SpinningIndicator::start()
{
    m_timer.start();
    repaint();
}

void SpinningIndicator::stop()
{
    m_timer.stop();
    update();
}

void SpinningIndicator::paintEvent(QPaintEvent *)
{
    if (!isSpinning())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    for (int i = 0; i < spokes; ++i) {
        QColor colour = palette().color(QPalette::WindowText);
        colour.setAlphaF(float((i + spokes - m_turn) % spokes + 1) / spokes);
        painter.setPen(QPen(colour, 1.75, Qt::SolidLine, Qt::RoundCap));
        const double outer = width() / 2.0 - 1;
        painter.save();
        painter.rotate(360.0 * i / spokes);
        painter.drawLine(QPointF(0, -outer), QPointF(0, -outer / 2));
        painter.restore();
    }
}

} // namespace brinemark

#include "moc_SpinningIndicator.cpp"
