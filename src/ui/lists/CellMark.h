// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Colours.h"

#include <QMetaType>
#include <qnamespace.h>

#include <optional>

class QPainter;
class QStyleOptionViewItem;

namespace brinemark
{

/// What a cell says beside its text: a colour, and a shape so that the colour does not say it alone. None by default.
struct CellMark {
    enum class Shape {
        None,
        Above, ///< a small triangle upwards: more than it should be
        Below, ///< downwards: less
        Opens, ///< a small arrow: a click opens something to choose from; shows where the mouse or the focus is
    };

    std::optional<ColourRole> role = {}; ///< of the text and the shape; none for the palette's own
    Shape shape = Shape::None;
};

/// Under which a model hands out the CellMark of a cell.
inline constexpr int CellMarkRole = int(Qt::UserRole) + 77;

/// Draws the shape behind the end of the cell's text, or into the right margin when there is no more room. To be called
/// after the cell has been drawn, with the option of its view item (text, font and alignment).
void paintCellMark(QPainter *painter, const QStyleOptionViewItem &option, const CellMark &mark);

} // namespace brinemark

Q_DECLARE_METATYPE(brinemark::CellMark)
