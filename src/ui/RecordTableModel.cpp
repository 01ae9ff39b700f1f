#include "ui/RecordTableModel.h"

#include "base/text/AmountText.h"
#include "base/text/DateText.h"
#include "model/KeyAccess.h"
#include "model/Tank.h"
#include "ui/Colours.h"

#include <QApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace brinemark
{

RecordTableModel::RecordTableModel(ContainerKind kind, QObject *parent)
    : QAbstractTableModel(parent)
    , m_kind(kind)
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

void RecordTableModel::setColumns(std::span<const RecordColumn> columns)
{
    beginResetModel();
    m_columns.assign(columns.begin(), columns.end());
    endResetModel();
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
    // One pass over the list, however many go.
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

void RecordTableModel::sortContainer()
{
    Container *list = container();
    if (!list)
        return;
    refresh();
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<const Record *> records;
    records.reserve(std::size_t(before.size()));
    for (const QModelIndex &index : before)
        records.push_back(list->recordAt(index.row()).get());
    list->sort();
    if (!before.isEmpty()) {
        std::unordered_map<const Record *, int> rowOf;
        rowOf.reserve(std::size_t(m_rowCount));
        for (int row = 0; row < m_rowCount; ++row)
            rowOf.emplace(list->recordAt(row).get(), row);
        QModelIndexList after;
        after.reserve(before.size());
        for (qsizetype i = 0; i < before.size(); ++i)
            after.append(index(rowOf.at(records[std::size_t(i)]), before[i].column()));
        changePersistentIndexList(before, after);
    }
    Q_EMIT layoutChanged({}, VerticalSortHint);
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

QString RecordTableModel::cellText(const Record &record, const RecordColumn &column) const
{
    if (column.shownText)
        return column.shownText(record);
    const QVariant value = valueForKey(record, column.identifier);
    switch (column.kind) {
    case ColumnKind::Date:
        return localeDateText(value.toDateTime());
    case ColumnKind::Number:
        return QLocale().toString(value.toDouble(), 'f', column.decimals);
    case ColumnKind::Amount:
        return formatObjectForLocale(value);
    case ColumnKind::Flag:
        return {};
    case ColumnKind::Text:
        break;
    }
    return value.toString();
}

QVariant RecordTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const std::shared_ptr<Record> record = recordAt(index.row());
    if (!record)
        return {};
    const RecordColumn &column = m_columns[std::size_t(index.column())];
    const auto isNotTested = [&] {
        return record->recordType() == RecordType::Condition && column.kind == ColumnKind::Number &&
               valueForKey(*record, column.identifier).toDouble() < 0;
    };
    switch (role) {
    case Qt::DisplayRole:
        return isNotTested() ? text("NotTested") : cellText(*record, column);
    case Qt::ForegroundRole:
        return isNotTested() ? QVariant(colour(ColourRole::NotTested, QApplication::palette())) : QVariant();
    case Qt::CheckStateRole:
        if (column.kind == ColumnKind::Flag)
            return valueForKey(*record, column.identifier).toBool() ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::TextAlignmentRole:
        return QVariant(Qt::Alignment(column.alignment | Qt::AlignVCenter));
    default:
        return {};
    }
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= int(m_columns.size()))
        return {};
    const RecordColumn &column = m_columns[std::size_t(section)];
    if (role == Qt::DisplayRole)
        return text(column.header);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::Alignment(column.alignment | Qt::AlignVCenter));
    return {};
}

} // namespace brinemark
