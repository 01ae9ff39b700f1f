// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/SharedRegistry.h"

#include <vector>

namespace brinemark
{

namespace
{

std::vector<SharedRegistry::End> &sharedEnds()
{
    static std::vector<SharedRegistry::End> ends;
    return ends;
}

} // namespace

void SharedRegistry::add(End end)
{
    sharedEnds().push_back(end);
}

void SharedRegistry::remove(End end)
{
    std::erase(sharedEnds(), end);
}

void SharedRegistry::endAll()
{
    while (!sharedEnds().empty())
        sharedEnds().back()(); // removes itself
}

} // namespace brinemark
