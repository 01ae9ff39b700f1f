// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>

namespace brinemark
{

/// A range of the value axis that a graph shades across its whole width; a single value is drawn as a dashed line.
struct GraphBand {
    double low = 0;
    double high = 0;
    QColor colour; ///< of the line and the edges; the area is filled with it at low opacity
};

} // namespace brinemark
