// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/CellEdit.h"

#include "ui/lists/RecordListController.h"

namespace brinemark
{

CellEditCommand::CellEditCommand(RecordListController &list, UndoDictionary dictionary, const QString &actionName)
    : QUndoCommand(actionName)
    , m_list(&list)
    , m_dictionary(std::move(dictionary))
{
}

void CellEditCommand::redo()
{
    if (std::exchange(m_pushed, true))
        exchange();
}

void CellEditCommand::exchange()
{
    std::optional<UndoDictionary> opposite = m_list ? m_list->undoWithDictionary(m_dictionary) : std::nullopt;
    if (opposite)
        m_dictionary = *std::move(opposite);
    else
        setObsolete(true); // its record is gone: the stack drops the step
}

} // namespace brinemark
