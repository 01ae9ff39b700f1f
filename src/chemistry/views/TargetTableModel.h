// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/NamedTargets.h"

#include <QAbstractTableModel>

#include <vector>

namespace brinemark
{

class Tank;

/// A tank's targets as table rows, in the order of targetsByName().
class TargetTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows the tank's targets, read anew; null for no tank. Rows that exist before and after stay selected.
    void setTank(const Tank *tank);
    [[nodiscard]] const NamedTarget *targetAt(int row) const; ///< null out of range

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<NamedTarget> m_listArray;
};

} // namespace brinemark
