// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QUndoCommand>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <utility>

namespace brinemark
{

/// One undoable edit of a field. Keeps the object alive for as long as the step can be taken back.
template <class Object, class Owner, class Value>
class FieldEdit : public QUndoCommand
{
public:
    /// `afterwards` runs after every storing: with true when the edit was made (or made again), with false when taken
    /// back.
    FieldEdit(std::shared_ptr<Object> object, Value Owner::*field, Value value,
              std::function<void(bool made)> afterwards)
        : m_object(std::move(object))
        , m_field(field)
        , m_other(std::move(value))
        , m_afterwards(std::move(afterwards))
    {
    }

    void redo() override { exchange(true); }
    void undo() override { exchange(false); }

private:
    void exchange(bool made)
    {
        std::swap((*m_object).*m_field, m_other);
        m_afterwards(made);
    }

    std::shared_ptr<Object> m_object;
    Value Owner::*m_field;
    Value m_other; ///< the value that is not in the object now
    std::function<void(bool)> m_afterwards;
};

/// Makes an edit and registers it under an action name. An edit that changes nothing does nothing at all: false.
template <class Object, class Owner, class Value>
bool editField(QUndoStack &undo, const QString &actionName, const std::shared_ptr<Object> &object, Value Owner::*field,
               const std::type_identity_t<Value> &value, std::function<void(bool made)> afterwards)
{
    if ((*object).*field == value)
        return false;
    auto *edit = new FieldEdit<Object, Owner, Value>(object, field, value, std::move(afterwards));
    edit->setText(actionName);
    undo.push(edit);
    return true;
}

} // namespace brinemark
