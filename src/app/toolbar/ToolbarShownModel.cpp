// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/toolbar/ToolbarShownModel.h"

#include "app/toolbar/ToolbarConfiguration.h"
#include "app/toolbar/ToolbarDrag.h"
#include "app/toolbar/ToolbarItems.h"

#include <QMimeData>

namespace brinemark
{

ToolbarShownModel::ToolbarShownModel(const QStringList &identifiers, QObject *parent)
    : QAbstractListModel(parent)
    , m_identifiers(usableToolbarIdentifiers(identifiers))
{
}

void ToolbarShownModel::setIdentifiers(const QStringList &identifiers)
{
    beginResetModel();
    m_identifiers = usableToolbarIdentifiers(identifiers);
    endResetModel();
    Q_EMIT changed();
}

int ToolbarShownModel::insert(int row, const QString &identifier)
{
    const ToolbarItem *item = toolbarItem(identifier);
    if (!item)
        return -1;
    const int count = int(m_identifiers.size());
    if (row < 0 || row > count)
        row = count;
    if (const qsizetype present = m_identifiers.indexOf(identifier); present >= 0 && !item->repeatable())
        return move(int(present), row);
    beginInsertRows({}, row, row);
    m_identifiers.insert(row, identifier);
    endInsertRows();
    Q_EMIT changed();
    return row;
}

int ToolbarShownModel::move(int from, int before)
{
    const int count = int(m_identifiers.size());
    if (from < 0 || from >= count || before < 0 || before > count)
        return -1;
    if (before == from || before == from + 1)
        return from;
    const int to = before > from ? before - 1 : before;
    beginMoveRows({}, from, from, {}, before);
    m_identifiers.move(from, to);
    endMoveRows();
    Q_EMIT changed();
    return to;
}

void ToolbarShownModel::remove(int row)
{
    if (row < 0 || row >= m_identifiers.size())
        return;
    beginRemoveRows({}, row, row);
    m_identifiers.removeAt(row);
    endRemoveRows();
    Q_EMIT changed();
}

int ToolbarShownModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_identifiers.size());
}

QVariant ToolbarShownModel::data(const QModelIndex &index, int role) const
{
    return checkIndex(index, CheckIndexOption::IndexIsValid) ? toolbarItemData(m_identifiers.at(index.row()), role)
                                                             : QVariant();
}

// Rows do not accept drops on themselves, so that a drop always falls between two rows.
Qt::ItemFlags ToolbarShownModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
                           : Qt::ItemIsDropEnabled;
}

QStringList ToolbarShownModel::mimeTypes() const
{
    return {ToolbarDrag::mimeType};
}

QMimeData *ToolbarShownModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    const int row = indexes.first().row();
    return ToolbarDrag{m_identifiers.at(row), row}.toMimeData();
}

bool ToolbarShownModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int, int,
                                        const QModelIndex &parent) const
{
    return action == Qt::MoveAction && !parent.isValid() && ToolbarDrag::fromMimeData(data).has_value();
}

// Moves the item at once. Afterwards the view tries to remove the dragged row, which this model does not support.
bool ToolbarShownModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                     const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const ToolbarDrag drag = *ToolbarDrag::fromMimeData(data);
    const int count = int(m_identifiers.size());
    if (row < 0 || row > count)
        row = count;
    const bool ownRow = drag.shownRow >= 0 && m_identifiers.value(drag.shownRow) == drag.identifier;
    Q_EMIT dropped(ownRow ? move(drag.shownRow, row) : insert(row, drag.identifier));
    return true;
}

} // namespace brinemark

#include "moc_ToolbarShownModel.cpp"
