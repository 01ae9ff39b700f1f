// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/GraphSymbols.h"

#include <QPainter>

namespace brinemark
{

void drawGraphSymbol(QPainter &painter, GraphSymbol symbol, QPointF centre)
{
    const auto polygon = [&](std::initializer_list<QPointF> corners) {
        painter.drawConvexPolygon(QPolygonF(corners).translated(centre));
    };
    switch (symbol) {
    case GraphSymbol::None:
        return;
    case GraphSymbol::Square:
        return painter.drawRect(QRectF(-3.2, -3.2, 6.4, 6.4).translated(centre));
    case GraphSymbol::Circle:
        return painter.drawEllipse(centre, 3.5, 3.5);
    case GraphSymbol::Triangle:
        return polygon({{0, -4.1}, {3.8, 2.7}, {-3.8, 2.7}});
    case GraphSymbol::Diamond:
        return polygon({{0, -4.2}, {4.2, 0}, {0, 4.2}, {-4.2, 0}});
    }
}

} // namespace brinemark
