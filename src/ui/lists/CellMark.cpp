// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/CellMark.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionViewItem>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr double half = 3; ///< of the shape's width, in pixels

QPainterPath triangle(QPointF middle, double upwards)
{
    QPainterPath path;
    path.moveTo(middle.x() - half, middle.y() + upwards * half * 0.8);
    path.lineTo(middle.x() + half, middle.y() + upwards * half * 0.8);
    path.lineTo(middle.x(), middle.y() - upwards * half * 0.8);
    path.closeSubpath();
    return path;
}

QPointF placeOf(const QStyleOptionViewItem &option)
{
    constexpr double gap = 3;
    const QRectF cell = option.rect;
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1;
    const bool leftToRight = option.direction == Qt::LeftToRight;
    double fromStart = cell.width() - half - 1;
    if (!(QStyle::visualAlignment(option.direction, option.displayAlignment) & (Qt::AlignHCenter | Qt::AlignRight)))
        fromStart = std::min(fromStart, margin + option.fontMetrics.horizontalAdvance(option.text) + gap + half);
    return {leftToRight ? cell.left() + fromStart : cell.right() - fromStart, cell.center().y()};
}

} // namespace

void paintCellMark(QPainter *painter, const QStyleOptionViewItem &option, const CellMark &mark)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool pointedAt = option.state.testAnyFlags(QStyle::State_MouseOver | QStyle::State_HasFocus);
    if (mark.shape == CellMark::Shape::None || (mark.shape == CellMark::Shape::Opens && !selected && !pointedAt))
        return;
    const QPalette::ColorRole textRole = selected ? QPalette::HighlightedText : QPalette::Text;
    const QPalette::ColorGroup group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const QColor ink =
        mark.role && !selected ? colour(*mark.role, option.palette) : option.palette.color(group, textRole);
    const QPointF middle = placeOf(option);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mark.shape == CellMark::Shape::Opens) {
        painter->setPen(QPen(ink, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPolyline(
            QPolygonF({middle + QPointF(-half, -1.5), middle + QPointF(0, 1.5), middle + QPointF(half, -1.5)}));
    } else {
        painter->fillPath(triangle(middle, mark.shape == CellMark::Shape::Above ? 1 : -1), ink);
    }
    painter->restore();
}

} // namespace brinemark
