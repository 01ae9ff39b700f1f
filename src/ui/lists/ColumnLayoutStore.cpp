// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/ColumnLayoutStore.h"

#include "base/PreferenceKeys.h"

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

bool holds(const ColumnInfoArray &layout, QStringView identifier)
{
    return std::any_of(layout.begin(), layout.end(),
                       [&](const ColumnInfo &column) { return column.identifier == identifier; });
}

} // namespace

PreferenceColumnLayout::PreferenceColumnLayout(const char *name, std::span<const RecordColumn> columns)
    : m_preference(preference::tableColumnsName(QLatin1String(name)))
    , m_columns(columns)
{
}

bool PreferenceColumnLayout::isColumn(const QString &identifier) const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [&](const RecordColumn &column) { return column.identifier == identifier; });
}

ColumnInfoArray PreferenceColumnLayout::read(const Tank &) const
{
    ColumnInfoArray layout;
    for (const QVariant &stored : Preferences::shared().variant(m_preference).toList()) {
        const QVariantMap column = stored.toMap();
        const QString identifier = column.value(QStringLiteral("identifier")).toString();
        const double width = column.value(QStringLiteral("width")).toDouble();
        if (isColumn(identifier) && !holds(layout, identifier))
            layout.push_back({identifier, std::isfinite(width) ? width : 0});
    }
    // A layout from a version with fewer columns, or no layout at all.
    for (const RecordColumn &column : m_columns) {
        if (!holds(layout, column.identifier))
            layout.push_back({column.identifier.toString(), 0});
    }
    return layout;
}

void PreferenceColumnLayout::write(Tank *, const ColumnInfoArray &layout)
{
    QVariantList columns;
    for (const ColumnInfo &column : layout) {
        columns.append(
            QVariantMap{{QStringLiteral("identifier"), column.identifier}, {QStringLiteral("width"), column.width}});
    }
    Preferences::shared().setVariant(m_preference, columns);
}

} // namespace brinemark
