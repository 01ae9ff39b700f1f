// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/toolbar/ToolbarConfiguration.h"

#include "app/toolbar/ToolbarItems.h"

#include <QVariantList>

#include <algorithm>
#include <optional>

namespace brinemark
{

namespace
{

constexpr QLatin1String identifiersKey{"Identifiers"};
constexpr QLatin1String displayKey{"DisplayMode"};
constexpr QLatin1String visibleKey{"Visible"};

// A store may hand a list of strings back as a list of anything; one element of another type damages the whole.
std::optional<QStringList> stringList(const QVariant &value)
{
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() != QMetaType::QVariantList)
        return std::nullopt;
    QStringList strings;
    for (const QVariant &element : value.toList()) {
        if (element.typeId() != QMetaType::QString)
            return std::nullopt;
        strings << element.toString();
    }
    return strings;
}

} // namespace

const ToolbarDisplayMode &toolbarDisplayMode(ToolbarDisplay mode)
{
    return *std::find_if(std::begin(toolbarDisplayModes), std::end(toolbarDisplayModes) - 1,
                         [mode](const ToolbarDisplayMode &candidate) { return candidate.mode == mode; });
}

QStringList toolbarDefaultIdentifiers()
{
    return {std::begin(toolbarDefaultSet), std::end(toolbarDefaultSet)};
}

QStringList usableToolbarIdentifiers(const QStringList &identifiers)
{
    QStringList usable;
    for (const QString &identifier : identifiers) {
        const ToolbarItem *item = toolbarItem(identifier);
        if (item && (item->repeatable() || !usable.contains(identifier)))
            usable << identifier;
    }
    return usable;
}

QVariantMap ToolbarConfiguration::toMap() const
{
    return {
        {identifiersKey, identifiers}, {displayKey, QString(toolbarDisplayMode(display).name)}, {visibleKey, visible}};
}

ToolbarConfiguration ToolbarConfiguration::fromMap(const QVariantMap &stored)
{
    ToolbarConfiguration configuration;
    if (const std::optional<QStringList> identifiers = stringList(stored.value(identifiersKey))) {
        // An empty toolbar may be somebody's wish; one emptied by unknown names is not.
        const QStringList usable = usableToolbarIdentifiers(*identifiers);
        if (!usable.isEmpty() || identifiers->isEmpty())
            configuration.identifiers = usable;
    }
    const QVariant name = stored.value(displayKey);
    for (const ToolbarDisplayMode &mode : toolbarDisplayModes) {
        if (name.typeId() == QMetaType::QString && name.toString() == mode.name)
            configuration.display = mode.mode;
    }
    const QVariant visible = stored.value(visibleKey);
    if (visible.typeId() == QMetaType::Bool)
        configuration.visible = visible.toBool();
    return configuration;
}

} // namespace brinemark
