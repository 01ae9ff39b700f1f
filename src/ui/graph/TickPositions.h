// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphRange.h"

#include <QList>

namespace brinemark
{

/// The values of an axis that get a tick mark: neighbouring multiples of 1, 2, 2.5, 3, 4 or 5 times a power of ten, so
/// that short labels state them exactly. As many as fit, but at most `count`; when `count` equal parts fill the range
/// exactly, its upper end gets no mark. With `preferWhole`, all values are whole numbers, unless fewer than two of them
/// are visible.
[[nodiscard]] QList<double> tickPositions(const GraphRange &visible, int count, bool preferWhole);

/// How many significant digits it takes to write every one of the values exactly.
[[nodiscard]] int significantDigits(const QList<double> &values);

} // namespace brinemark
