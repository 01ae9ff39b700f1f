// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/TankRef.h"

#include "model/Tank.h"

namespace brinemark
{

TankRef::TankRef(Tank *tank)
{
    if (tank)
        m_anchor = tank->m_anchor;
}

} // namespace brinemark
