// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ContainerKind.h"
#include "model/Record.h"
#include "ui/lists/RecordColumn.h"

#include <QAbstractTableModel>

#include <memory>
#include <span>
#include <vector>

namespace brinemark
{

class Container;
class RecordCells;
class Tank;

/// The records of one container of a tank as table rows, in the order in which they stand there. Nothing is kept for a
/// row: a cell's text is made when it is asked for. Whoever changes the container says so through one of the operations
/// below.
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// `cells` says what stands in the cells and takes what is entered; it has to outlive the model.
    RecordTableModel(ContainerKind kind, RecordCells &cells, QObject *parent = nullptr);

    /// Shows another tank, or none (null), and these columns; they are copied.
    void setTank(Tank *tank, std::span<const RecordColumn> columns);
    void appendColumn(const RecordColumn &column); ///< at the right; rows and selection stay
    void removeColumn(int column);

    [[nodiscard]] Container *container() const;                    ///< null without a tank, and after the tank is gone
    [[nodiscard]] std::shared_ptr<Record> recordAt(int row) const; ///< null out of range
    [[nodiscard]] const std::vector<RecordColumn> &columns() const { return m_columns; }
    [[nodiscard]] int columnOf(QStringView identifier) const; ///< -1 when it is not shown

    int append(std::shared_ptr<Record> record); ///< answers its row, or -1 without a tank
    void remove(const std::vector<std::shared_ptr<Record>> &records);
    bool sortContainer();  ///< by its own order; selections follow their records; answers whether any record moved
    void refresh();        ///< shows what the container holds now
    void showRow(int row); ///< its record has changed

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    ContainerKind m_kind;
    RecordCells &m_cells;
    std::weak_ptr<Tank> m_tank;
    std::vector<RecordColumn> m_columns;
    int m_rowCount = 0; ///< as last told to the views
};

} // namespace brinemark
