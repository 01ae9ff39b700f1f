// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include <functional>

namespace brinemark::test
{

/// A text of every element; `get` is a member of the elements, or a function.
template <class Range, class Get>
QStringList listOf(const Range &range, Get get)
{
    QStringList list;
    for (const auto &element : range)
        list << std::invoke(get, element);
    return list;
}

} // namespace brinemark::test
