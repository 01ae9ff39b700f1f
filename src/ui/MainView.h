// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"

#include <QtGlobal>

namespace brinemark
{

/// The views that fill the right side of the main window, with the numbers by which the whole program knows them.
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
inline constexpr qint32 mainViewCount = enumCount<MainView>;

} // namespace brinemark
