// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/TableChecks.h"
#include "base/text/Texts.h"

#include <QLatin1String>
#include <QStringList>
#include <QVariantMap>

namespace brinemark
{

enum class ToolbarDisplay { IconAndText, IconOnly, TextOnly };

/// A display mode with its stored name, its text and the toolkit's button style, in the order of the menus.
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
static_assert(rowsFollow<ToolbarDisplay>(toolbarDisplayModes, &ToolbarDisplayMode::mode),
              "toolbarDisplayModes needs one row for each ToolbarDisplay, in its order");

[[nodiscard]] const ToolbarDisplayMode &toolbarDisplayMode(ToolbarDisplay mode);

/// The identifiers of the default set.
[[nodiscard]] QStringList toolbarDefaultIdentifiers();

/// The identifiers that a toolbar can show: unknown ones are removed, and of a non-repeatable item that occurs twice
/// only the first is kept. Separators and spaces may repeat.
[[nodiscard]] QStringList usableToolbarIdentifiers(const QStringList &identifiers);

/// The user's changes to the toolbar. The stored form is a dictionary with "Identifiers" (list of strings),
/// "DisplayMode" (string) and "Visible" (flag).
struct ToolbarConfiguration {
    QStringList identifiers = toolbarDefaultIdentifiers();
    ToolbarDisplay display = ToolbarDisplay::IconAndText;
    bool visible = true;

    [[nodiscard]] QVariantMap toMap() const;

    /// Reads the stored form. Each part that is missing, has the wrong type or is unknown gets its default value.
    [[nodiscard]] static ToolbarConfiguration fromMap(const QVariantMap &stored);

    friend bool operator==(const ToolbarConfiguration &, const ToolbarConfiguration &) = default;
};

} // namespace brinemark
