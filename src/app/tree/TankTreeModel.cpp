// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TankTreeModel.h"

#include "model/TankList.h"
#include "ui/Icons.h"

namespace brinemark
{

namespace
{

// An index stores the parent of its row in its internal id: 0 for a tank, the tank for a container, the container for a
// record. Both pointers are at least four-byte aligned, so the lowest bit can tell them apart.
constexpr quintptr containerBit = 1;

quintptr idBelow(Tank *tank)
{
    return quintptr(tank);
}
quintptr idBelow(Container *container)
{
    return quintptr(container) | containerBit;
}

Tank *tankOf(quintptr id)
{
    return id & containerBit ? nullptr : reinterpret_cast<Tank *>(id);
}
Container *containerOf(quintptr id)
{
    return id & containerBit ? reinterpret_cast<Container *>(id & ~containerBit) : nullptr;
}

} // namespace

TankTreeModel::TankTreeModel(TankList &list, QObject *parent)
    : QAbstractItemModel(parent)
    , m_list(list)
{
}

void TankTreeModel::reload()
{
    beginResetModel();
    for (const auto &tank : m_list)
        tank->showListsInUse();
    endResetModel();
}

TreeItem TankTreeModel::itemAt(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    // Between the removal of a record or tank and the next reload(), the view may ask for a row that no longer exists.
    if (Container *container = containerOf(index.internalId())) {
        return index.row() < container->count() ? TreeItem(static_cast<ItemData &>(*container->recordAt(index.row())))
                                                : TreeItem();
    }
    if (Tank *tank = tankOf(index.internalId())) {
        const std::vector<Container *> containers = tank->tankItemsArray();
        return std::size_t(index.row()) < containers.size() ? TreeItem(*containers[std::size_t(index.row())])
                                                            : TreeItem();
    }
    return index.row() < m_list.count() ? TreeItem(*m_list.at(index.row())) : TreeItem();
}

QModelIndex TankTreeModel::indexOf(const TreeItem &item) const
{
    if (item.isNone())
        return {};
    const int tankRow = m_list.indexOf(item.tank);
    if (tankRow < 0)
        return {};
    if (item.isTank())
        return createIndex(tankRow, 0, quintptr(0));
    if (item.tank->tankItemsArray().empty()) // a tank without lists has no rows below it
        return {};
    if (item.isContainer())
        return createIndex(int(item.container->kind()), 0, idBelow(item.tank));
    const int row = item.container->indexOf(item.record);
    return row < 0 ? QModelIndex() : createIndex(row, 0, idBelow(item.container));
}

QModelIndex TankTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column != 0 || row >= rowCount(parent))
        return {};
    if (!parent.isValid())
        return createIndex(row, column, quintptr(0));
    const TreeItem item = itemAt(parent);
    return createIndex(row, column, item.isTank() ? idBelow(item.tank) : idBelow(item.container));
}

QModelIndex TankTreeModel::parent(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    if (Container *container = containerOf(index.internalId()))
        return indexOf(TreeItem(*container));
    if (Tank *tank = tankOf(index.internalId()))
        return indexOf(TreeItem(*tank));
    return {};
}

int TankTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_list.count();
    const TreeItem item = itemAt(parent);
    if (item.isTank())
        return int(item.tank->tankItemsArray().size());
    return item.isLivestockGroup() ? item.container->count() : 0;
}

bool TankTreeModel::hasChildren(const QModelIndex &parent) const
{
    // A group can be expanded even when it is empty.
    return itemAt(parent).isLivestockGroup() || rowCount(parent) > 0;
}

QVariant TankTreeModel::data(const QModelIndex &index, int role) const
{
    const TreeItem item = itemAt(index);
    if (item.isNone())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return hasCurrentTank && !hasCurrentTank() ? QVariant() : item.name();
    case Qt::EditRole:
    case Qt::AccessibleTextRole:
        return item.name();
    case Qt::DecorationRole:
        return icon(item.iconName());
    default:
        return {};
    }
}

bool TankTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const TreeItem item = itemAt(index);
    if (role != Qt::EditRole || item.isNone() || !rename || !rename(item, value.toString()))
        return false;
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags TankTreeModel::flags(const QModelIndex &index) const
{
    const TreeItem item = itemAt(index);
    if (item.isNone())
        return {};
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDropEnabled;
    // The names of containers are fixed texts and are not stored in the file, so only tanks and records can be renamed.
    if (!item.isContainer())
        flags |= Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
    return flags;
}

} // namespace brinemark

#include "moc_TankTreeModel.cpp"
