// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/NoteListController.h"

#include "model/Tank.h"

namespace brinemark
{

namespace
{

constexpr auto noteColumns = std::to_array<RecordColumn>({
    {.identifier = u"date", .header = "Date"_key, .kind = ColumnKind::Date},
    {.identifier = u"note", .header = "ColumnNote"_key},
});

constexpr RecordListTraits noteTraits{
    .kind = ContainerKind::Note,
    .itemKey = "NoteItem"_key,
    .emptySentenceKey = "EmptyNote"_key,
    .makeRecord = &makeNewRecord<NoteData>,
    .deletingCountsAChange = false,
    .columns = noteColumns,
    .layoutName = "NoteList",
};

} // namespace

NoteListController::NoteListController()
    : RecordListController(noteTraits)
{
}

} // namespace brinemark

#include "moc_NoteListController.cpp"
