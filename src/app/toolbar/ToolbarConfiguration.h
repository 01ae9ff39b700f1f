// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"

#include <QLatin1String>
#include <QStringList>
#include <QVariantMap>

namespace brinemark
{

enum class ToolbarDisplay { IconAndText, IconOnly, TextOnly };

/// A display mode's stored name, its text and the tool kit's word for it, in the order that menus offer them.
struct ToolbarDisplayMode {
    ToolbarDisplay mode;
    QLatin1String name;
    TextKey label;
    Qt::ToolButtonStyle style;
};

inline constexpr ToolbarDisplayMode toolbarDisplayModes[] = {
    {ToolbarDisplay::IconAndText, QLatin1String("iconAndText"), "ToolbarIconAndText"_key, Qt::ToolButtonTextUnderIcon},
    {ToolbarDisplay::IconOnly, QLatin1String("iconOnly"), "ToolbarIconOnly"_key, Qt::ToolButtonIconOnly},
    {ToolbarDisplay::TextOnly, QLatin1String("textOnly"), "ToolbarTextOnly"_key, Qt::ToolButtonTextOnly},
};

[[nodiscard]] const ToolbarDisplayMode &toolbarDisplayMode(ToolbarDisplay mode);

/// The default set's identifiers.
[[nodiscard]] QStringList toolbarDefaultIdentifiers();

/// The identifiers that a toolbar can show: unknown ones are left out, of an item that stands twice the first place
/// holds; separators and spaces may repeat.
[[nodiscard]] QStringList usableToolbarIdentifiers(const QStringList &identifiers);

/// What a person may change about the toolbar, and its stored form: a dictionary with "Identifiers" (list of strings),
/// "DisplayMode" (string) and "Visible" (flag).
struct ToolbarConfiguration {
    QStringList identifiers = toolbarDefaultIdentifiers();
    ToolbarDisplay display = ToolbarDisplay::IconAndText;
    bool visible = true;

    [[nodiscard]] QVariantMap toMap() const;

    /// Whatever is missing, of another type or makes no sense has its default, each part by itself.
    [[nodiscard]] static ToolbarConfiguration fromMap(const QVariantMap &stored);

    friend bool operator==(const ToolbarConfiguration &, const ToolbarConfiguration &) = default;
};

} // namespace brinemark
