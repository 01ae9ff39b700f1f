#include "chemistry/views/TargetTableModel.h"

#include "base/text/NumberText.h"
#include "base/text/Texts.h"
#include "model/Tank.h"
#include "ui/Colours.h"

#include <QApplication>
#include <QPalette>

#include <algorithm>

namespace brinemark
{

namespace
{

enum Column { Name, PreferredValue, WarningOn, DeviationValue };
constexpr std::array<TextKey, 4> headerKeys{
    "ColumnParameter"_key,
    "ColumnPreferred"_key,
    "ColumnWarning"_key,
    "ColumnDeviation"_key,
};

QString cellText(const TankData &target, int column)
{
    switch (column) {
    case PreferredValue:
        return localizeAndTrimZeros(target.preferredValue);
    case WarningOn:
        return target.warningOn ? text("OnLabel") : text("OffLabel");
    case DeviationValue:
        return formatText(QStringLiteral("%@ %@"), {text("PlusMinus"), localizeAndTrimZeros(target.deviationValue)});
    default:
        return target.name;
    }
}

} // namespace

void TargetTableModel::setTank(Tank *tank)
{
    beginResetModel();
    m_listArray.clear();
    for (const ParameterTraits &traits : parameterTable) {
        if (tank)
            m_listArray.push_back(
                std::static_pointer_cast<const TankData>(tank->target(traits.parameter)->shared_from_this()));
    }
    std::stable_sort(m_listArray.begin(), m_listArray.end(),
                     [](const auto &a, const auto &b) { return a->name.compare(b->name, Qt::CaseInsensitive) < 0; });
    endResetModel();
}

const TankData *TargetTableModel::targetAt(int row) const
{
    return row >= 0 && row < int(m_listArray.size()) ? m_listArray[std::size_t(row)].get() : nullptr;
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
    const TankData &target = *targetAt(index.row());
    if (role == Qt::DisplayRole)
        return cellText(target, index.column());
    if (role == Qt::ForegroundRole && index.column() == DeviationValue && !(target.warningOn && target.deviationOn))
        return colour(ColourRole::SecondaryText, QApplication::palette());
    return {};
}

QVariant TargetTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= int(headerKeys.size()))
        return {};
    return text(headerKeys[std::size_t(section)]);
}

} // namespace brinemark
