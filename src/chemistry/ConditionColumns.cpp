#include "chemistry/ConditionColumns.h"

#include <algorithm>

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

std::vector<ShownConditionColumn> shownConditionColumns(const Condition::ColumnInfoArray &saved)
{
    std::vector<ShownConditionColumn> shown;
    for (const ColumnInfo &info : saved) {
        const ConditionColumnTraits *column = conditionColumnFromIdentifier(info.identifier);
        if (!column)
            continue;
        if (std::erase_if(shown, [&](const ShownConditionColumn &other) { return other.column == column; }) == 0)
            shown.push_back({column, info.width});
    }
    return shown;
}

} // namespace brinemark
