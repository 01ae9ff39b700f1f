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
        return painter.drawRect(QRectF(-3, -3, 6, 6).translated(centre));
    case GraphSymbol::Circle:
        return painter.drawEllipse(centre, 3.25, 3.25);
    case GraphSymbol::Triangle:
        return polygon({{0, -3.9}, {3.5, 2.5}, {-3.5, 2.5}});
    case GraphSymbol::Diamond:
        return polygon({{0, -3.9}, {3.9, 0}, {0, 3.9}, {-3.9, 0}});
    }
}

} // namespace brinemark
