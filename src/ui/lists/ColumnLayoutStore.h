// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ColumnInfo.h"
#include "ui/lists/RecordColumn.h"

#include <span>

namespace brinemark
{

class Tank;

/// Where the column layout of a list is kept.
class ColumnLayoutStore
{
public:
    virtual ~ColumnLayoutStore() = default;

    /// The columns to show for a tank, each at most once.
    [[nodiscard]] virtual ColumnInfoArray read(const Tank &tank) const = 0;

    /// Keeps the layout that is on screen. `tank` is null when the tank has been closed since the layout changed.
    virtual void write(Tank *tank, const ColumnInfoArray &layout) = 0;
};

/// One layout for all tanks, kept in the preferences. Every column is always shown: the order and the widths are
/// stored.
class PreferenceColumnLayout : public ColumnLayoutStore
{
public:
    /// `name` names the layout in the preferences; `columns` are the list's columns in their default order.
    PreferenceColumnLayout(const char *name, std::span<const RecordColumn> columns);

    [[nodiscard]] ColumnInfoArray read(const Tank &tank) const override;
    void write(Tank *tank, const ColumnInfoArray &layout) override;

private:
    [[nodiscard]] bool isColumn(const QString &identifier) const;

    QString m_preference;
    std::span<const RecordColumn> m_columns;
};

} // namespace brinemark
