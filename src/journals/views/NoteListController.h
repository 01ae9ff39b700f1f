#pragma once

#include "ui/RecordListController.h"
#include "ui/Shared.h"

namespace brinemark
{

/// The notes about the current tank.
class NoteListController : public RecordListController, public Shared<NoteListController>
{
    Q_OBJECT

protected:
    [[nodiscard]] std::span<const RecordColumn> columnsFor(Tank *tank) override;

private:
    friend class Shared<NoteListController>;
    NoteListController();
};

} // namespace brinemark
