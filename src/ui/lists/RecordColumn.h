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
    QStringView identifier; ///< the key of the record's field; also the container's sort identifier
    TextKey header;
    ColumnKind kind = ColumnKind::Text;
    int decimals = 0; ///< of a number
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    int width = 0;      ///< opening width in pixels; 0 for the smallest width
    int leastWidth = 0; ///< smallest width in pixels; 0 for what the header needs. Usual values always fit.
    QString (*shownText)(const Record &) = nullptr; ///< the cell's text where it is not the value of the key
    bool editable = false;
    TextKey absentText = {}; ///< what a cell shows in place of a value that is not there; empty when it shows nothing

    /// Whether its cells are edited by typing. A date is chosen in the calendar, a flag is ticked.
    [[nodiscard]] constexpr bool takesTyping() const
    {
        return editable && kind != ColumnKind::Date && kind != ColumnKind::Flag;
    }
    [[nodiscard]] constexpr bool opensCalendar() const { return editable && kind == ColumnKind::Date; }
};

} // namespace brinemark
