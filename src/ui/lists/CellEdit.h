// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>
#include <QString>
#include <QUndoCommand>
#include <QVariant>

#include <memory>

namespace brinemark
{

class RecordListController;
struct Record;

/// What takes one edit of a cell back. Keeps the record alive for as long as that may happen.
struct UndoDictionary {
    std::shared_ptr<Record> data;
    QVariant value; ///< of the record under the identifier, to be put back
    QString identifier;
};

/// The step on the undo stack that stands for an edited cell: hands the dictionary to its list, which answers the
/// opposite one. The value is stored before the step is pushed, so that pushing it does nothing.
class CellEditCommand : public QUndoCommand
{
public:
    CellEditCommand(RecordListController &list, UndoDictionary dictionary, const QString &actionName);

    void undo() override { exchange(); }
    void redo() override;

private:
    void exchange();

    QPointer<RecordListController> m_list;
    UndoDictionary m_dictionary;
    bool m_pushed = false;
};

} // namespace brinemark
