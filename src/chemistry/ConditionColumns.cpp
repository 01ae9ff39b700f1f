// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionColumns.h"

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

template <class Matches>
const ConditionColumnTraits *findColumn(Matches matches)
{
    const auto it = std::find_if(conditionColumnTable.begin(), conditionColumnTable.end(), matches);
    return it == conditionColumnTable.end() ? nullptr : &*it;
}

} // namespace

const ConditionColumnTraits *conditionColumnFromTag(int tag)
{
    return findColumn([&](const ConditionColumnTraits &column) { return column.tag == tag; });
}

const ConditionColumnTraits *conditionColumnFromIdentifier(QStringView identifier)
{
    return findColumn([&](const ConditionColumnTraits &column) { return column.identifier == identifier; });
}

int tagFromColumnIdentifier(QStringView identifier)
{
    const ConditionColumnTraits *column = conditionColumnFromIdentifier(identifier);
    return column ? column->tag : 0;
}

SFCheckedFormatter conditionFormatter(const ConditionColumnTraits &column)
{
    constexpr int toNearest = 1;
    SFCheckedFormatter formatter(notTested, column.maximum, column.decimals, toNearest);
    formatter.setUseNotTested(true);
    return formatter;
}

namespace
{

std::vector<ShownConditionColumn> columnsOfLayout(const ColumnInfoArray &saved)
{
    std::vector<ShownConditionColumn> shown;
    for (const ColumnInfo &info : saved) {
        const ConditionColumnTraits *column = conditionColumnFromIdentifier(info.identifier);
        if (!column)
            continue;
        if (std::erase_if(shown, [&](const ShownConditionColumn &other) { return other.column == column; }) > 0)
            continue;
        const double width = info.width > 0 && std::isfinite(info.width) ? info.width : 0;
        if (width == 0 && !shown.empty())
            shown.back().width = 0;
        shown.push_back({column, width});
    }
    return shown;
}

} // namespace

std::vector<ShownConditionColumn> shownConditionColumns(const ColumnInfoArray &saved)
{
    std::vector<ShownConditionColumn> shown = columnsOfLayout(saved);
    return shown.empty() ? columnsOfLayout(Condition::defaultColumnInfoArray()) : shown;
}

} // namespace brinemark
