// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/TwoDGraph.h"

class QPainter;

namespace brinemark
{

/// Draws a symbol of 6 to 8 pixels around `centre` with the painter's pen and brush; nothing for None. All have about
/// the same weight, so a caller's legend may use it too.
void drawGraphSymbol(QPainter &painter, GraphSymbol symbol, QPointF centre);

} // namespace brinemark
