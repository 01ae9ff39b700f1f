// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLatin1String>
#include <QString>
#include <QVariant>

#include <optional>

class QMimeData;

namespace brinemark
{

/// The content of a drag between the lists of the customising sheet: an item's identifier and, when it comes from the
/// list of shown items, its row.
struct ToolbarDrag {
    static constexpr QLatin1String mimeType{"application/x-brinemark-toolbar-item"};

    QString identifier;
    int shownRow = -1; ///< -1 when dragged from the list of available items

    /// The caller owns the result.
    [[nodiscard]] QMimeData *toMimeData() const;
    /// Returns nullopt for foreign or damaged content and for unknown items.
    [[nodiscard]] static std::optional<ToolbarDrag> fromMimeData(const QMimeData *data);
};

/// The text, icon or tool tip of an item in either list.
[[nodiscard]] QVariant toolbarItemData(const QString &identifier, int role);

} // namespace brinemark
