// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/lists/CellMark.h"

#include <QString>

class QVariant;

namespace brinemark
{

struct Record;

/// Where a record table gets the contents of its cells. It asks cell by cell, and only for visible cells. Columns are
/// numbered as in the model.
class RecordCells
{
public:
    [[nodiscard]] virtual QString cellText(const Record &record, int column) const = 0;
    [[nodiscard]] virtual CellMark cellMark(const Record &record, int column) const = 0;
    /// A null text means no tool tip of the cell's own: the tool tip is then the cell's text, if that is cut off.
    [[nodiscard]] virtual QString cellToolTip(const Record &record, int column) const = 0;
    /// Stores a value that was entered into an editable column; false when the value was refused.
    virtual bool editCell(int row, int column, const QVariant &value) = 0;

protected:
    RecordCells() = default;
    ~RecordCells() = default;
};

} // namespace brinemark
