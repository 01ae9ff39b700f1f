// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"

#include <QStringView>

namespace brinemark
{

struct Record;

/// How a column shows and takes its values.
enum class ColumnKind { Date, Number, Text, Flag, Amount };

/// A column of a record table, described once in a constexpr table of its list controller.
struct RecordColumn {
    QStringView identifier; ///< the record's key, which is also what the container sorts by
    TextKey header;
    ColumnKind kind = ColumnKind::Text;
    int decimals = 0; ///< of a number
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    int width = 0;      ///< pixels to begin with; 0 for the smallest width
    int leastWidth = 0; ///< pixels of the smallest width; 0 for what the header needs. Usual values always fit.
    QString (*shownText)(const Record &) = nullptr; ///< the cell's text where it is not the value of the key
    bool editable = false;

    /// Whether its cells are edited by typing. A date is chosen in the calendar, a flag is ticked.
    [[nodiscard]] constexpr bool takesTyping() const
    {
        return editable && kind != ColumnKind::Date && kind != ColumnKind::Flag;
    }
};

} // namespace brinemark
