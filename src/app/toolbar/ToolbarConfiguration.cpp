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

// The preferences may return a list of strings as a QVariantList. One element of another type makes the list invalid.
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
        // An empty stored list is the user's choice; a list with only unknown names is damaged and gives the default
        // set.
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
