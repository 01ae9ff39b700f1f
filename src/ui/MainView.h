// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

namespace brinemark
{

/// What the main window's right side shows. The numbers are the view constants that the whole program uses.
enum class MainView : qint32 {
    None = 0,
    Tank = 1,
    LivestockGroup = 2,
    LivestockItem = 3,
    Schedule = 4,
    Notes = 5,
    Conditions = 6,
    Inventory = 7,
    Expenses = 8,
};
inline constexpr qint32 mainViewCount = 9;

} // namespace brinemark
