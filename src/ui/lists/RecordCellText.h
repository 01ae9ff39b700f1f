// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace brinemark
{

struct Record;
struct RecordColumn;

/// The text of a record's cell, as the column's kind shows its value.
[[nodiscard]] QString textOfCell(const Record &record, const RecordColumn &column);

/// The date in words and with its time, for a cell that opens the calendar; a null text for other cells.
[[nodiscard]] QString toolTipOfCell(const Record &record, const RecordColumn &column);

} // namespace brinemark
