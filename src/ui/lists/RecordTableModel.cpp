// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordTableModel.h"

#include "model/KeyAccess.h"
#include "model/Tank.h"
#include "ui/lists/RecordCells.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace brinemark
{

RecordTableModel::RecordTableModel(ContainerKind kind, RecordCells &cells, QObject *parent)
    : QAbstractTableModel(parent)
    , m_kind(kind)
    , m_cells(cells)
{
}

Container *RecordTableModel::container() const
{
    const std::shared_ptr<Tank> tank = m_tank.lock();
    return tank ? tank->container(m_kind) : nullptr;
}

std::shared_ptr<Record> RecordTableModel::recordAt(int row) const
{
    const Container *list = container();
    return list && row >= 0 && row < list->count() ? list->recordAt(row) : nullptr;
}

int RecordTableModel::columnOf(QStringView identifier) const
{
    const auto it = std::find_if(m_columns.begin(), m_columns.end(),
                                 [&](const RecordColumn &column) { return column.identifier == identifier; });
    return it == m_columns.end() ? -1 : int(it - m_columns.begin());
}

void RecordTableModel::setTank(Tank *tank, std::span<const RecordColumn> columns)
{
    beginResetModel();
    m_tank = tank ? tank->weak_from_this() : std::weak_ptr<Tank>();
    m_columns.assign(columns.begin(), columns.end());
    const Container *list = container();
    m_rowCount = list ? list->count() : 0;
    endResetModel();
}

void RecordTableModel::appendColumn(const RecordColumn &column)
{
    const int place = int(m_columns.size());
    beginInsertColumns({}, place, place);
    m_columns.push_back(column);
    endInsertColumns();
}

void RecordTableModel::removeColumn(int column)
{
    beginRemoveColumns({}, column, column);
    m_columns.erase(m_columns.begin() + column);
    endRemoveColumns();
}

int RecordTableModel::append(std::shared_ptr<Record> record)
{
    Container *list = container();
    if (!list)
        return -1;
    refresh();
    beginInsertRows({}, m_rowCount, m_rowCount);
    list->appendRecord(std::move(record));
    ++m_rowCount;
    endInsertRows();
    return m_rowCount - 1;
}

void RecordTableModel::remove(const std::vector<std::shared_ptr<Record>> &records)
{
    Container *list = container();
    if (!list || records.empty())
        return;
    // One pass over the list, however many records are removed.
    std::unordered_set<const Record *> going;
    for (const auto &record : records)
        going.insert(record.get());
    beginResetModel();
    std::vector<std::shared_ptr<Record>> staying;
    staying.reserve(std::size_t(list->count()));
    for (int row = 0; row < list->count(); ++row) {
        std::shared_ptr<Record> record = list->recordAt(row);
        if (!going.contains(record.get()))
            staying.push_back(std::move(record));
    }
    list->clear();
    for (std::shared_ptr<Record> &record : staying)
        list->appendRecord(std::move(record));
    m_rowCount = list->count();
    endResetModel();
}

bool RecordTableModel::sortContainer()
{
    Container *list = container();
    if (!list)
        return false;
    refresh();
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const auto recordsInOrder = [&] {
        std::vector<const Record *> records;
        records.reserve(std::size_t(m_rowCount));
        for (int row = 0; row < m_rowCount; ++row)
            records.push_back(list->recordAt(row).get());
        return records;
    };
    const std::vector<const Record *> before = recordsInOrder();
    list->sort();
    const std::vector<const Record *> after = recordsInOrder();
    const bool moved = before != after;
    if (const QModelIndexList kept = persistentIndexList(); moved && !kept.isEmpty()) {
        // There are few persistent indexes and possibly many rows: look up only the rows of those indexes.
        std::unordered_map<const Record *, int> rowOf;
        for (const QModelIndex &index : kept)
            rowOf.emplace(before[std::size_t(index.row())], 0);
        for (int row = 0; row < m_rowCount; ++row) {
            if (const auto it = rowOf.find(after[std::size_t(row)]); it != rowOf.end())
                it->second = row;
        }
        QModelIndexList follow;
        follow.reserve(kept.size());
        for (const QModelIndex &index : kept)
            follow.append(this->index(rowOf.at(before[std::size_t(index.row())]), index.column()));
        changePersistentIndexList(kept, follow);
    }
    Q_EMIT layoutChanged({}, VerticalSortHint);
    return moved;
}

void RecordTableModel::refresh()
{
    const Container *list = container();
    const int count = list ? list->count() : 0;
    if (count != m_rowCount) {
        beginResetModel();
        m_rowCount = count;
        endResetModel();
    } else if (count > 0 && !m_columns.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(count - 1, int(m_columns.size()) - 1));
    }
}

int RecordTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rowCount;
}

int RecordTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

void RecordTableModel::showRow(int row)
{
    if (row >= 0 && row < m_rowCount && !m_columns.empty())
        Q_EMIT dataChanged(index(row, 0), index(row, int(m_columns.size()) - 1));
}

Qt::ItemFlags RecordTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid() || index.column() >= int(m_columns.size()))
        return flags;
    const RecordColumn &column = m_columns[std::size_t(index.column())];
    flags.setFlag(Qt::ItemIsEditable, column.takesTyping());
    flags.setFlag(Qt::ItemIsUserCheckable, column.editable && column.kind == ColumnKind::Flag);
    return flags;
}

QVariant RecordTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const RecordColumn &column = m_columns[std::size_t(index.column())];
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::Alignment(column.alignment | Qt::AlignVCenter));
    const std::shared_ptr<Record> record = recordAt(index.row());
    if (!record)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return m_cells.cellText(*record, index.column());
    case Qt::EditRole:
        return valueForKey(*record, column.identifier);
    case Qt::ForegroundRole:
        if (const CellMark mark = m_cells.cellMark(*record, index.column()); mark.role)
            return colour(*mark.role, QGuiApplication::palette());
        return {};
    case CellMarkRole:
        return QVariant::fromValue(m_cells.cellMark(*record, index.column()));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        if (const QString toolTip = m_cells.cellToolTip(*record, index.column()); !toolTip.isNull())
            return toolTip;
        return {};
    case Qt::CheckStateRole:
        if (column.kind == ColumnKind::Flag)
            return valueForKey(*record, column.identifier).toBool() ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

bool RecordTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return false;
    const RecordColumn &column = m_columns[std::size_t(index.column())];
    if (!column.editable)
        return false;
    if (role == Qt::CheckStateRole && column.kind == ColumnKind::Flag)
        return m_cells.editCell(index.row(), index.column(), value.toInt() == Qt::Checked);
    return role == Qt::EditRole && m_cells.editCell(index.row(), index.column(), value);
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= int(m_columns.size()))
        return {};
    const RecordColumn &column = m_columns[std::size_t(section)];
    switch (role) {
    case Qt::DisplayRole:
        return text(column.header);
    case Qt::AccessibleTextRole: { // says what the sort mark shows
        const Container *list = container();
        if (!list || list->sortIdentifier() != column.identifier)
            return text(column.header);
        const TextKey sorted = list->sortAscending() ? "SortedAscending"_key : "SortedDescending"_key;
        return fillPlaceholders(text(sorted), {text(column.header)});
    }
    case Qt::TextAlignmentRole:
        return QVariant(Qt::Alignment(column.alignment | Qt::AlignVCenter));
    default:
        return {};
    }
}

} // namespace brinemark

#include "moc_RecordTableModel.cpp"
