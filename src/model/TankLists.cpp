// SPDX-License-Identifier: GPL-3.0-or-later

// The insert and remove operations of Tank that are named after each list.

#include "model/Tank.h"

namespace brinemark
{

void Tank::insertInFishListArray(const std::shared_ptr<FishData> &record, int index)
{
    insertInList(ContainerKind::Fish, record, index);
}

void Tank::removeFromFishListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Fish, index);
}

void Tank::insertInPlantListArray(const std::shared_ptr<PlantData> &record, int index)
{
    insertInList(ContainerKind::Plant, record, index);
}

void Tank::removeFromPlantListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Plant, index);
}

void Tank::insertInInvertListArray(const std::shared_ptr<InvertData> &record, int index)
{
    insertInList(ContainerKind::Invert, record, index);
}

void Tank::removeFromInvertListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Invert, index);
}

void Tank::insertInCoralListArray(const std::shared_ptr<CoralData> &record, int index)
{
    insertInList(ContainerKind::Coral, record, index);
}

void Tank::removeFromCoralListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Coral, index);
}

void Tank::insertInScheduleListArray(const std::shared_ptr<ScheduleData> &record, int index)
{
    insertInList(ContainerKind::Schedule, record, index);
}

void Tank::removeFromScheduleListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Schedule, index);
}

void Tank::insertInNoteListArray(const std::shared_ptr<NoteData> &record, int index)
{
    insertInList(ContainerKind::Note, record, index);
}

void Tank::removeFromNoteListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Note, index);
}

void Tank::insertInConditionListArray(const std::shared_ptr<ConditionData> &record, int index)
{
    insertInList(ContainerKind::Condition, record, index);
}

void Tank::removeFromConditionListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Condition, index);
}

void Tank::insertInInventoryListArray(const std::shared_ptr<InventoryData> &record, int index)
{
    insertInList(ContainerKind::Inventory, record, index);
}

void Tank::removeFromInventoryListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Inventory, index);
}

void Tank::insertInExpenseListArray(const std::shared_ptr<ExpenseData> &record, int index)
{
    insertInList(ContainerKind::Expense, record, index);
}

void Tank::removeFromExpenseListArrayAtIndex(int index)
{
    removeFromListAtIndex(ContainerKind::Expense, index);
}

} // namespace brinemark
