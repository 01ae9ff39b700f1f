// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/toolbar/ToolbarAvailableModel.h"

#include "app/toolbar/ToolbarDrag.h"
#include "app/toolbar/ToolbarItems.h"
#include "app/toolbar/ToolbarShownModel.h"

#include <QMimeData>

namespace brinemark
{

ToolbarAvailableModel::ToolbarAvailableModel(ToolbarShownModel *shown, QObject *parent)
    : QAbstractListModel(parent)
    , m_shown(shown)
{
    follow();
    connect(shown, &ToolbarShownModel::changed, this, &ToolbarAvailableModel::follow);
}

// Updates row by row rather than with a model reset, so that the selection is kept.
void ToolbarAvailableModel::follow()
{
    int row = 0;
    for (const QLatin1String allowed : toolbarAllowedSet) {
        const bool wanted = toolbarItem(QString(allowed))->repeatable() || !m_shown->identifiers().contains(allowed);
        const bool present = row < m_identifiers.size() && m_identifiers.at(row) == allowed;
        if (wanted && !present) {
            beginInsertRows({}, row, row);
            m_identifiers.insert(row, allowed);
            endInsertRows();
        } else if (!wanted && present) {
            beginRemoveRows({}, row, row);
            m_identifiers.removeAt(row);
            endRemoveRows();
        }
        if (wanted)
            ++row;
    }
}

int ToolbarAvailableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_identifiers.size());
}

QVariant ToolbarAvailableModel::data(const QModelIndex &index, int role) const
{
    return checkIndex(index, CheckIndexOption::IndexIsValid) ? toolbarItemData(m_identifiers.at(index.row()), role)
                                                             : QVariant();
}

Qt::ItemFlags ToolbarAvailableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags item =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    // The order of this list is fixed, so an item may be dropped anywhere in it.
    return index.isValid() ? item | Qt::ItemIsDropEnabled : Qt::ItemIsDropEnabled;
}

QStringList ToolbarAvailableModel::mimeTypes() const
{
    return {ToolbarDrag::mimeType};
}

QMimeData *ToolbarAvailableModel::mimeData(const QModelIndexList &indexes) const
{
    return indexes.isEmpty() ? nullptr : ToolbarDrag{m_identifiers.at(indexes.first().row())}.toMimeData();
}

bool ToolbarAvailableModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int, int,
                                            const QModelIndex &) const
{
    if (action != Qt::MoveAction)
        return false;
    const std::optional<ToolbarDrag> drag = ToolbarDrag::fromMimeData(data);
    return drag && drag->shownRow >= 0 && m_shown->identifiers().value(drag->shownRow) == drag->identifier;
}

bool ToolbarAvailableModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                         const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    m_shown->remove(ToolbarDrag::fromMimeData(data)->shownRow);
    return true;
}

} // namespace brinemark

#include "moc_ToolbarAvailableModel.cpp"
