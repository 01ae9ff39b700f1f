// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/TwoDGraph.h"

class QPainter;

namespace brinemark
{

/// Draws a symbol of 6 to 8 pixels around `centre` with the painter's pen and brush; draws nothing for None. All
/// symbols look equally heavy.
void drawGraphSymbol(QPainter &painter, GraphSymbol symbol, QPointF centre);

} // namespace brinemark
