// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

namespace brinemark
{

/// A column of a record table, as a saved layout names it.
struct ColumnInfo {
    QString identifier; ///< a field key: "date", "activity" or a parameter's identifier
    double width = 0;   ///< pixels; 0: the column opens with its own width

    friend bool operator==(const ColumnInfo &, const ColumnInfo &) = default;
};

/// The shown columns in display order.
using ColumnInfoArray = std::vector<ColumnInfo>;

} // namespace brinemark
