// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/GraphKey.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

namespace brinemark
{

namespace
{

constexpr double keyMargin = 8; ///< around the heading and the legend, and beside the colour tiles
constexpr double side = 10;     ///< of a colour tile
constexpr double betweenNames = 20;

} // namespace

GraphKey::GraphKey(const GraphScene &scene, const GraphLook &look, const GraphHeading &heading, double width)
    : m_look(look)
    , m_heading(heading)
{
    const QFontMetricsF metrics(look.font);
    if (!heading.title.isEmpty())
        m_headingHeight =
            QFontMetricsF(titleFont()).height() + (heading.subtitle.isEmpty() ? 0 : metrics.height()) + 2 * keyMargin;
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
    if (m_headingHeight > 0)
        drawHeading(painter, target.adjusted(keyMargin, keyMargin, -keyMargin, 0));
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

/// Draws the title at the top of the rectangle, and the subtitle below it.
void GraphKey::drawHeading(QPainter &painter, QRectF line) const
{
    painter.setPen(m_look.text);
    for (const auto &[words, font] : {std::pair{m_heading.title, titleFont()}, {m_heading.subtitle, m_look.font}}) {
        const QFontMetricsF metrics(font);
        painter.setFont(font);
        line.setHeight(metrics.height());
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(words, Qt::ElideRight, line.width()));
        line.translate(0, line.height());
    }
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
