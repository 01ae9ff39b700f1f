// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ContainerKind.h"

#include "model/ItemData.h"

#include <algorithm>

namespace brinemark
{

namespace
{

template <class Matches>
std::optional<ContainerKind> firstKind(Matches matches)
{
    const auto it = std::find_if(containerTraitsTable.begin(), containerTraitsTable.end(), matches);
    return it == containerTraitsTable.end() ? std::nullopt : std::optional(it->kind);
}

} // namespace

std::optional<ContainerKind> containerKindFromListKey(QStringView listKey)
{
    return firstKind([&](const ContainerTraits &traits) { return traits.listKey == listKey; });
}

std::optional<ContainerKind> containerKindFromFileKey(QStringView fileKey)
{
    return firstKind([&](const ContainerTraits &traits) { return traits.fileKey == fileKey; });
}

std::optional<ContainerKind> containerKindOf(ItemContext context)
{
    if (context == ItemContext::None)
        return std::nullopt;
    return firstKind([&](const ContainerTraits &traits) { return traits.itemContext == context; });
}

std::optional<ContainerKind> containerKindOf(const Record &record)
{
    switch (record.recordType()) {
    case RecordType::Item:
        return containerKindOf(static_cast<const ItemData &>(record).itemContext());
    case RecordType::Condition:
        return ContainerKind::Condition;
    case RecordType::Schedule:
        return ContainerKind::Schedule;
    case RecordType::Inventory:
        return ContainerKind::Inventory;
    case RecordType::Expense:
        return ContainerKind::Expense;
    case RecordType::Note:
        return ContainerKind::Note;
    case RecordType::Target:
        break;
    }
    return std::nullopt;
}

} // namespace brinemark
