// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

namespace brinemark
{

class Tank;

/// A record's non-owning reference to its tank, used like a `Tank *`. Becomes null when the tank is destroyed, so that
/// a record which an undo step still holds never refers to a destroyed tank.
class TankRef
{
public:
    TankRef() = default;
    TankRef(Tank *tank);

    [[nodiscard]] Tank *get() const { return m_anchor ? *m_anchor : nullptr; }
    operator Tank *() const { return get(); }
    Tank *operator->() const { return get(); }

private:
    friend class Tank;
    explicit TankRef(std::shared_ptr<Tank *> anchor)
        : m_anchor(std::move(anchor))
    {
    }

    std::shared_ptr<Tank *> m_anchor; ///< holds the tank's address until the tank clears it
};

} // namespace brinemark
