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

/// The records of one container of a tank as table rows, in the container's order. The model keeps nothing per row: a
/// cell's text is made on request. Code that changes the container uses the operations below or calls refresh().
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// `cells` supplies the contents of the cells and stores what is entered; it has to outlive the model.
    RecordTableModel(ContainerKind kind, RecordCells &cells, QObject *parent = nullptr);

    /// Shows another tank, or none (null), and these columns; they are copied.
    void setTank(Tank *tank, std::span<const RecordColumn> columns);
    void appendColumn(const RecordColumn &column); ///< at the right; rows and selection stay
    void removeColumn(int column);

    [[nodiscard]] Container *container() const; ///< null without a tank and after its tank was closed
    [[nodiscard]] std::shared_ptr<Record> recordAt(int row) const; ///< null out of range
    [[nodiscard]] const std::vector<RecordColumn> &columns() const { return m_columns; }
    [[nodiscard]] int columnOf(QStringView identifier) const; ///< -1 when it is not shown

    int append(std::shared_ptr<Record> record); ///< returns its row, or -1 without a tank
    void remove(const std::vector<std::shared_ptr<Record>> &records);
    bool sortContainer();  ///< by the container's own order; selections follow their records; true when a record moved
    void refresh();        ///< after a change of the container by other code
    void showRow(int row); ///< after a change of the row's record

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
    int m_rowCount = 0; ///< as last announced to the views
};

} // namespace brinemark
