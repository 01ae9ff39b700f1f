// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/search/FoundProfilesModel.h"

#include "livestock/SearchFields.h"

namespace brinemark
{

void FoundProfilesModel::append(const SpeciesProfile &profile)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_foundArray.push_back(profile);
    endInsertRows();
}

void FoundProfilesModel::clear()
{
    beginResetModel();
    m_foundArray.clear();
    endResetModel();
}

int FoundProfilesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_foundArray.size());
}

int FoundProfilesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(searchFields.size());
}

QVariant FoundProfilesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return profileValue(profileAt(index.row()), searchFields[std::size_t(index.column())].key);
}

QVariant FoundProfilesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount())
        return {};
    return text(searchFields[std::size_t(section)].titleKey);
}

FoundProfilesOrder::FoundProfilesOrder(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

bool FoundProfilesOrder::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    return m_collator.compare(left.data().toString(), right.data().toString()) < 0;
}

} // namespace brinemark

#include "moc_FoundProfilesModel.cpp"
