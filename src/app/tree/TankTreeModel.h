// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/tree/TreeItem.h"

#include <QAbstractItemModel>

#include <functional>

namespace brinemark
{

class TankList;

/// The tank tree as an item model: tanks, their containers, and the records of the livestock groups. The tanks do not
/// notify the model of changes: code that changes them must call `reload`.
class TankTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit TankTreeModel(TankList &list, QObject *parent = nullptr);

    [[nodiscard]] TreeItem itemAt(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(const TreeItem &item) const; ///< invalid when the item is in no list

    void reload();

    /// Called to store an edited name; returns whether it was stored.
    std::function<bool(const TreeItem &item, const QString &name)> rename;
    /// Returns whether there is a current tank; without one, rows have no text.
    std::function<bool()> hasCurrentTank;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &) const override { return 1; }
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    TankList &m_list;
};

} // namespace brinemark
