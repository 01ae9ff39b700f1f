// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TreeDropRules.h"

#include "model/TankList.h"

namespace brinemark
{

bool takesRecord(const TreeItem &row, const ItemData &dragged)
{
    return row.isTank() || (row.isContainer() && row.container->traits().itemContext == dragged.itemContext());
}

DropOperation validateRecordDrop(const ItemData &dragged, const DropProposal &proposal, Qt::DropActions allowed)
{
    if (!proposal.childIndex)
        return DropOperation::Refused;
    const bool groupOfItsKind = proposal.parent.isContainer() && takesRecord(proposal.parent, dragged);
    if (!groupOfItsKind && !proposal.parent.isRecord())
        return DropOperation::Refused;
    return allowed == Qt::CopyAction ? DropOperation::Copy : DropOperation::Move;
}

std::optional<int> validateTankDrop(const TankList &list, const Tank &dragged, const TreeItem &proposedRow)
{
    if (proposedRow.isNone() || proposedRow.tank == &dragged)
        return {};
    return list.indexOf(proposedRow.tank) + 1;
}

std::shared_ptr<ItemData> acceptRecordDrop(const std::shared_ptr<ItemData> &dragged, const DropProposal &proposal,
                                           DropOperation operation)
{
    const std::optional<ContainerKind> kind = containerKindOf(dragged->itemContext());
    Tank *source = dragged->tank;
    Tank *destination = proposal.parent.tank;
    if (!kind || !source || !destination || operation == DropOperation::Refused)
        return nullptr;

    std::shared_ptr<ItemData> record = dragged;
    if (operation == DropOperation::Copy)
        record = copyOf(*dragged);
    else
        source->container(*kind)->removeEveryOccurrence(dragged.get());

    Container &list = *destination->container(*kind);
    if (!proposal.childIndex) {
        list.appendRecord(record);
    } else {
        // Within one tank the index is reduced by one even when the record comes from below the target.
        const bool shifted = source == destination && *proposal.childIndex > 0;
        list.insertRecord(record, *proposal.childIndex - (shifted ? 1 : 0));
    }
    record->tank = destination;
    return record;
}

void acceptTankDrop(TankList &list, const Tank &dragged, int index)
{
    const int from = list.indexOf(&dragged);
    if (from < 0)
        return;
    std::shared_ptr<Tank> tank = list.removeAt(from);
    list.insert(from < index ? index - 1 : index, std::move(tank));
}

} // namespace brinemark
