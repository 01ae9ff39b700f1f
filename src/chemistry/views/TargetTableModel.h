#pragma once

#include "model/TankData.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

namespace brinemark
{

class Tank;

/// A tank's targets as table rows, sorted by name without regard to case.
class TargetTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setTank(Tank *tank);                              ///< takes up the targets afresh; null for none
    [[nodiscard]] const TankData *targetAt(int row) const; ///< null out of range

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<std::shared_ptr<const TankData>> m_listArray;
};

} // namespace brinemark
