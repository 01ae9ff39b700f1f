// SPDX-License-Identifier: GPL-3.0-or-later

// Constructors and copying of the record types that otherwise only hold fields.

#include "base/Clock.h"
#include "base/text/Texts.h"
#include "model/RecordCopy.h"

namespace brinemark
{

ConditionData::ConditionData(Tank *parent)
    : Record(parent)
    , date(clock::now())
{
}

std::shared_ptr<Record> ConditionData::copy() const
{
    return makeCopy(*this);
}

ExpenseData::ExpenseData(Tank *parent)
    : Record(parent)
    , date(clock::now())
    , expense(text("NewExpenseItem"_key))
    , amount(0.0)
    , type(text("ExpenseNoneItem"_key))
{
}

std::shared_ptr<Record> ExpenseData::copy() const
{
    return makeCopy(*this);
}

InventoryData::InventoryData(Tank *parent)
    : Record(parent)
    , item(text("NewInventoryItem"_key))
{
}

std::shared_ptr<Record> InventoryData::copy() const
{
    return makeCopy(*this);
}

NoteData::NoteData(Tank *parent)
    : Record(parent)
    , date(clock::now())
    , note(text("NewNoteItem"_key))
{
}

std::shared_ptr<Record> NoteData::copy() const
{
    return makeCopy(*this);
}

std::shared_ptr<Record> TankData::copy() const
{
    return makeCopy(*this);
}

} // namespace brinemark
