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

/// A state of a cell's value, shown beside its text by a colour and by a shape, so that it can be told without colours.
struct CellMark {
    enum class Shape {
        None,
        Above, ///< a triangle that points up: the value is too high
        Below, ///< a triangle that points down: the value is too low
        Opens, ///< an arrow: a click opens a chooser. Drawn only under the mouse, with the focus or in a selected row
    };

    std::optional<ColourRole> role = {}; ///< colour of text and shape; the palette's text colour when there is none
    Shape shape = Shape::None;
};

/// The item role under which a model returns the CellMark of a cell.
inline constexpr int CellMarkRole = int(Qt::UserRole) + 77;

/// Draws the shape after the cell's text, or in the right margin when the text leaves no room. Call it after the cell
/// has been drawn; `option` is the initialised option of the item (text, font and alignment).
void paintCellMark(QPainter *painter, const QStyleOptionViewItem &option, const CellMark &mark);

} // namespace brinemark

Q_DECLARE_METATYPE(brinemark::CellMark)
