// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Alerts.h"

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
    /// Exchanges the value in place with the other one, for undo as for redo. Returns false when that is no longer
    /// possible: the program then beeps, and the stack drops the step.
    using Exchange = std::function<bool()>;

    UndoStep(const QString &actionName, Exchange exchange)
        : QUndoCommand(actionName)
        , m_exchange(std::move(exchange))
    {
    }

    void undo() override { exchange(); }
    void redo() override
    {
        if (std::exchange(m_pushed, true))
            exchange();
    }

private:
    void exchange()
    {
        if (m_exchange())
            return;
        setObsolete(true);
        beep();
    }

    Exchange m_exchange;
    bool m_pushed = false;
};

/// Sets a field and registers the edit under an action name; the undo step keeps the object alive. `inDocument` says
/// whether the object is still in the document; if not, the step cannot be undone or redone. `afterwards` runs after
/// every change of the field. An edit that changes nothing does nothing and returns false.
template <class Object, class Owner, class Value>
bool editField(QUndoStack &undo, const QString &actionName, const std::shared_ptr<Object> &object, Value Owner::*field,
               const std::type_identity_t<Value> &value, std::function<bool()> inDocument,
               std::function<void()> afterwards)
{
    if ((*object).*field == value)
        return false;
    Value old = std::exchange((*object).*field, value);
    afterwards();
    undo.push(new UndoStep(actionName, [=, other = std::move(old)]() mutable {
        if (!inDocument())
            return false;
        std::swap((*object).*field, other);
        afterwards();
        return true;
    }));
    return true;
}

} // namespace brinemark
