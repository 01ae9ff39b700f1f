// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/SFCheckedFormatter.h"
#include "model/Parameters.h"
#include "ui/lists/RecordColumn.h"

#include <QObject>

#include <memory>
#include <span>
#include <vector>

class QHeaderView;
class QTableView;

namespace brinemark
{

class RecordTableModel;
class Tank;
struct ConditionColumnTraits;

/// The columns of the water-test table: which ones are shown, in which order and how wide. A tank's saved layout makes
/// them, and what is moved or resized is stored into it at once, without counting a change.
class ConditionTableColumns : public QObject
{
    Q_OBJECT

public:
    /// What is asked of a column again and again, worked out once.
    struct Column {
        const ConditionColumnTraits *traits;
        std::optional<Parameter> parameter; ///< none for the date
        SFCheckedFormatter formatter;
    };

    explicit ConditionTableColumns(RecordTableModel &model);

    void setTable(QTableView &table); ///< before anything else is asked

    /// The columns for a tank's table; empty for none. Those of another tank than the last one have to be arranged once
    /// the table has them.
    [[nodiscard]] std::span<const RecordColumn> columnsFor(Tank *tank);
    void arrangeFor(Tank *tank);

    [[nodiscard]] const Column &at(int column) const; ///< as the model counts them
    [[nodiscard]] int columnFromTag(int tag) const;   ///< -1 when it is not shown
    [[nodiscard]] std::vector<int> inDisplayOrder() const;

    /// Hides the column of a tag, or shows it at the right; then, with `autoSize`, the one that was the last goes back
    /// to its smallest width. A tag that is no column does nothing.
    void toggleColumnWithTag(int tag, bool autoSize);

    void updateColumnInfo(); ///< stores the columns as they are on screen into the tank that is on screen

private:
    [[nodiscard]] QHeaderView &header() const;
    [[nodiscard]] int minimumWidth(int column) const;
    void sectionResized(int section, int width);

    RecordTableModel &m_model;
    QTableView *m_table = nullptr;
    std::vector<Column> m_all;           ///< in the order of the table of columns
    std::vector<RecordColumn> m_columns; ///< of the tank, as the model got them
    std::weak_ptr<Tank> m_tank;
    bool m_arranging = false; ///< the columns change by the program, not by the user
};

} // namespace brinemark
