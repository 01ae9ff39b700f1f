// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// The pasteboard types of the tank tree; the data of each is a property list.
namespace brinemark::pasteboard
{

/// A dragged tank; the data is the text "tank available".
inline const QString tank = QStringLiteral("TankOutlineViewPboardType");
/// A livestock record; the data is the text "fish available" while dragging, and the record's dictionary after copying.
inline const QString livestock = QStringLiteral("FishOutlineViewPboardType");
/// The kind of a copied record, by its name in the tank file ("TankFish" ...).
inline const QString itemContext = QStringLiteral("ItemContext");

} // namespace brinemark::pasteboard
