#include "journals/views/NoteListController.h"

namespace brinemark
{

NoteListController::NoteListController()
    : RecordListController({ContainerKind::Note, "NoteItem"_key, "EmptyNote"_key, "NoteSmall", nullptr})
{
}
std::span<const RecordColumn> NoteListController::columnsFor(Tank *)
{
    return {};
}

} // namespace brinemark
