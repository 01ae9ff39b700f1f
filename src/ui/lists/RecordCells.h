// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/lists/CellMark.h"

#include <QString>

class QVariant;

namespace brinemark
{

struct Record;

/// What a record table asks about its cells, one at a time and only for those in sight. Columns count as in the model.
class RecordCells
{
public:
    [[nodiscard]] virtual QString cellText(const Record &record, int column) const = 0;
    [[nodiscard]] virtual CellMark cellMark(const Record &record, int column) const = 0;
    /// A null text for none of its own: a text that is cut off then shows whole.
    [[nodiscard]] virtual QString cellToolTip(const Record &record, int column) const = 0;
    /// Stores what was entered into an editable column; false when it was not taken.
    virtual bool editCell(int row, int column, const QVariant &value) = 0;

protected:
    RecordCells() = default;
    ~RecordCells() = default;
};

} // namespace brinemark
