// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QUndoCommand>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace brinemark
{

/// A step on the undo stack for an edit that has been made already: pushing it does nothing.
class UndoStep : public QUndoCommand
{
public:
    /// Puts the other value in place: the old one with `made` false (undo), the new one with true (redo). Returns false
    /// when that is no longer possible; the stack then drops the step.
    using Exchange = std::function<bool(bool made)>;

    UndoStep(const QString &actionName, Exchange exchange)
        : QUndoCommand(actionName)
        , m_exchange(std::move(exchange))
    {
    }

    void undo() override { setObsolete(!m_exchange(false)); }
    void redo() override
    {
        if (std::exchange(m_pushed, true))
            setObsolete(!m_exchange(true));
    }

private:
    Exchange m_exchange;
    bool m_pushed = false;
};

/// Sets a field and registers the edit under an action name; the undo step keeps the object alive. `afterwards` runs
/// after every change of the field: with true when the edit is made or made again, with false when it is undone. An
/// edit that changes nothing does nothing and returns false.
template <class Object, class Owner, class Value>
bool editField(QUndoStack &undo, const QString &actionName, const std::shared_ptr<Object> &object, Value Owner::*field,
               const std::type_identity_t<Value> &value, std::function<void(bool made)> afterwards)
{
    if ((*object).*field == value)
        return false;
    Value old = std::exchange((*object).*field, value);
    afterwards(true);
    undo.push(new UndoStep(actionName, [=, other = std::move(old)](bool made) mutable {
        std::swap((*object).*field, other);
        afterwards(made);
        return true;
    }));
    return true;
}

} // namespace brinemark
