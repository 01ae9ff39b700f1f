// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/GraphKey.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

namespace brinemark
{

namespace
{

constexpr double keyMargin = 8; ///< around the title and the legend, and beside the colour tiles
constexpr double side = 10;     ///< of a colour tile
constexpr double betweenNames = 20;

} // namespace

GraphKey::GraphKey(const GraphScene &scene, const GraphLook &look, const QString &title, double width)
    : m_look(look)
    , m_title(title)
{
    if (!title.isEmpty())
        m_titleHeight = QFontMetricsF(titleFont()).height() + 2 * keyMargin;

    const QFontMetricsF metrics(look.font);
    QPointF place(keyMargin, keyMargin / 2);
    for (const GraphLine &line : scene.lines) {
        if (!line.visible || line.points.isEmpty() || line.attributes.name.isEmpty())
            continue;
        const double length = side + keyMargin + metrics.horizontalAdvance(line.attributes.name);
        if (place.x() > keyMargin && place.x() + length > width - keyMargin)
            place = {keyMargin, place.y() + metrics.height() + keyMargin / 2};
        m_entries.append({line.attributes.name, line.attributes.colour, place});
        place.rx() += length + betweenNames;
    }
    if (!m_entries.isEmpty())
        m_legendHeight = place.y() + metrics.height() + keyMargin;
}

void GraphKey::drawTo(QPainter &painter, const QRectF &target) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(target, m_look.background);
    painter.setPen(m_look.text);
    painter.setFont(titleFont());
    painter.drawText(
        QRectF(target.topLeft(), QSizeF(target.width(), m_titleHeight)).adjusted(keyMargin, 0, -keyMargin, 0),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_title);

    painter.setFont(m_look.font);
    const double height = QFontMetricsF(m_look.font).height();
    const QPointF corner(target.left(), target.bottom() - m_legendHeight);
    for (const Entry &entry : m_entries) {
        const QPointF place = corner + entry.place;
        const QColor outline = m_look.outlineOf(entry.colour);
        painter.setPen(outline.isValid() ? outline : entry.colour);
        painter.setBrush(entry.colour);
        painter.drawRoundedRect(QRectF(place.x(), place.y() + (height - side) / 2, side, side), 2, 2);
        painter.setPen(m_look.text);
        const QRectF words(place.x() + side + keyMargin, place.y(), target.right() - place.x() - side - keyMargin,
                           height);
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, entry.name);
    }
    painter.restore();
}

QFont GraphKey::titleFont() const
{
    constexpr double larger = 1.25;
    QFont font = m_look.font;
    font.setBold(true);
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * larger));
    return font;
}

} // namespace brinemark
