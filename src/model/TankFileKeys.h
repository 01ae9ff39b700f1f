// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// Keys of a tank file's root dictionary.
namespace brinemark::tankfile
{

inline const QString fileAttributesKey = QStringLiteral("FileAttributes");
inline const QString selectedRowKey = QStringLiteral("SelectedRow");
inline const QString bundleVersionKey = QStringLiteral("bundleVersion");
inline const QString metaNotesKey = QStringLiteral("metaNotes");
inline const QString metaKeywordsKey = QStringLiteral("metaKeywords");

/// The key of the tank at a position counted from 1.
[[nodiscard]] inline QString tankKey(int position)
{
    return QString::number(position);
}

} // namespace brinemark::tankfile
