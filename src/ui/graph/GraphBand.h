// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>

namespace brinemark
{

/// A stretch of the value axis that a graph shades across its whole width; a single value is a dashed line.
struct GraphBand {
    double low = 0;
    double high = 0;
    QColor colour; ///< of the line and the edges; the shade is a breath of it
};

} // namespace brinemark
