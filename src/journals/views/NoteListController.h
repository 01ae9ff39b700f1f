// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

/// The list of the notes about the current tank.
class NoteListController : public RecordListController, public Shared<NoteListController>
{
    Q_OBJECT

private:
    friend class Shared<NoteListController>;
    NoteListController();
};

} // namespace brinemark
