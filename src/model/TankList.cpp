// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/TankList.h"

#include <algorithm>

namespace brinemark
{

int TankList::indexOf(const Tank *tank) const
{
    const auto it = std::find_if(m_tanks.begin(), m_tanks.end(), [&](const auto &held) { return held.get() == tank; });
    return it == m_tanks.end() ? -1 : int(it - m_tanks.begin());
}

void TankList::insert(int index, std::shared_ptr<Tank> tank)
{
    m_tanks.insert(m_tanks.begin() + std::clamp(index, 0, count()), std::move(tank));
}

std::shared_ptr<Tank> TankList::removeAt(int index)
{
    std::shared_ptr<Tank> tank = at(index);
    m_tanks.erase(m_tanks.begin() + index);
    return tank;
}

} // namespace brinemark
