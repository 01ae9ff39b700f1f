// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/NoteListController.h"

#include "model/Tank.h"

namespace brinemark
{

namespace
{

constexpr std::array<RecordColumn, 2> noteColumns{{
    {u"date", "Date"_key, ColumnKind::Date},
    {u"note", "ColumnNote"_key, ColumnKind::Text},
}};

constexpr RecordListTraits noteTraits{
    ContainerKind::Note, "NoteItem"_key, "EmptyNote"_key, &makeNewRecord<NoteData>, false, noteColumns,
};

} // namespace

NoteListController::NoteListController()
    : RecordListController(noteTraits)
{
}

} // namespace brinemark

#include "moc_NoteListController.cpp"
