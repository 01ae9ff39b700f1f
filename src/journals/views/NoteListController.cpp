// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/NoteListController.h"

#include "model/Tank.h"
#include "ui/MenuTags.h"

#include <array>

namespace brinemark
{

namespace
{

constexpr auto noteColumns = std::to_array<RecordColumn>({
    {.identifier = u"date", .header = "Date"_key, .kind = ColumnKind::Date},
    {.identifier = u"note", .header = "ColumnNote"_key},
});

constexpr std::array noteMenu{newListItem, deleteListItem(menutag::NoteSelected)};

constexpr RecordListTraits noteTraits{
    .kind = ContainerKind::Note,
    .itemKey = "NoteItem"_key,
    .emptySentenceKey = "EmptyNote"_key,
    .makeRecord = &makeNewRecord<NoteData>,
    .deletingCountsAChange = false,
    .columns = noteColumns,
    .layoutName = "NoteList",
    .menuName = "noteCM",
    .menu = noteMenu,
};

} // namespace

NoteListController::NoteListController()
    : RecordListController(noteTraits)
{
}

} // namespace brinemark

#include "moc_NoteListController.cpp"
