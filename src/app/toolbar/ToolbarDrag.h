// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLatin1String>
#include <QString>
#include <QVariant>

#include <optional>

class QMimeData;

namespace brinemark
{

/// What is dragged between the lists of the customising sheet: an item's identifier, and its row when it comes from the
/// list of shown items.
struct ToolbarDrag {
    static constexpr QLatin1String mimeType{"application/x-brinemark-toolbar-item"};

    QString identifier;
    int shownRow = -1; ///< -1: from the list of available items

    /// The caller owns the result, as item models hand drags out.
    [[nodiscard]] QMimeData *toMimeData() const;
    /// Nothing for foreign, damaged or unknown content.
    [[nodiscard]] static std::optional<ToolbarDrag> fromMimeData(const QMimeData *data);
};

/// The text, picture and tool tip of an item in either list.
[[nodiscard]] QVariant toolbarItemData(const QString &identifier, int role);

} // namespace brinemark
