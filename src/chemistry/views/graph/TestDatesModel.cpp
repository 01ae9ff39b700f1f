// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/TestDatesModel.h"

#include "base/text/DateText.h"

namespace brinemark
{

void TestDatesModel::setTests(Condition::Records tests)
{
    beginResetModel();
    m_tests = std::move(tests);
    endResetModel();
}

int TestDatesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_tests.size());
}

QVariant TestDatesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const QDateTime &date = m_tests[std::size_t(index.row())]->date;
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return localeDateText(date);
    return role == dateRole ? date : QVariant();
}

QModelIndexList TestDatesModel::match(const QModelIndex &start, int role, const QVariant &value, int hits,
                                      Qt::MatchFlags flags) const
{
    const int type = flags & Qt::MatchTypeMask;
    if (type == Qt::MatchExactly || type == Qt::MatchFixedString)
        return {};
    return QAbstractListModel::match(start, role, value, hits, flags);
}

} // namespace brinemark

#include "moc_TestDatesModel.cpp"
