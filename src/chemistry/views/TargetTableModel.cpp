// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/TargetTableModel.h"

#include "base/TableChecks.h"
#include "base/text/NumberText.h"
#include "base/text/Texts.h"
#include "model/Tank.h"

#include <QApplication>
#include <QPalette>

#include <array>
#include <utility>

namespace brinemark
{

namespace
{

enum Column { Name, PreferredValue, WarningOn, DeviationValue };
constexpr auto headerKeys = std::to_array<TextKey>({
    "ColumnParameter"_key,
    "ColumnPreferred"_key,
    "ColumnWarning"_key,
    "ColumnDeviation"_key,
});
static_assert(headerKeys.size() == enumCount<Column>, "headerKeys needs one text for each Column");

QString cellText(const NamedTarget &named, int column)
{
    const TankData &target = *named.target;
    switch (column) {
    case PreferredValue:
        return localizeAndTrimZeros(target.preferredValue);
    case WarningOn:
        return target.warningOn ? text("OnLabel") : text("OffLabel");
    case DeviationValue:
        return formatText(QStringLiteral("%@ %@"), {text("PlusMinus"), localizeAndTrimZeros(target.deviationValue)});
    default:
        return named.name;
    }
}

} // namespace

void TargetTableModel::setTank(const Tank *tank)
{
    std::vector<NamedTarget> targets = tank ? targetsByName(*tank) : std::vector<NamedTarget>();
    if (targets == m_listArray) {
        if (tank)
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_listArray = std::move(targets);
    endResetModel();
}

const NamedTarget *TargetTableModel::targetAt(int row) const
{
    return row >= 0 && row < int(m_listArray.size()) ? &m_listArray[std::size_t(row)] : nullptr;
}

int TargetTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_listArray.size());
}

int TargetTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(headerKeys.size());
}

QVariant TargetTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const NamedTarget &named = *targetAt(index.row());
    if (role == Qt::DisplayRole)
        return cellText(named, index.column());
    // An unused deviation is grey, unless its row is selected and the selection's text colour applies.
    const bool bandIsUsed = named.target->warningOn && named.target->deviationOn;
    if (role == Qt::ForegroundRole && index.column() == DeviationValue && !bandIsUsed)
        return QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    return {};
}

QVariant TargetTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= int(headerKeys.size()))
        return {};
    return text(headerKeys[std::size_t(section)]);
}

} // namespace brinemark

#include "moc_TargetTableModel.cpp"
