// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/// What the tank tree puts on the pasteboard; each type carries a property list.
namespace brinemark::pasteboard
{

/// A tank that is being dragged: the text "tank available".
inline const QString tank = QStringLiteral("TankOutlineViewPboardType");
/// A livestock record: "fish available" while it is being dragged, its dictionary once it has been copied.
inline const QString livestock = QStringLiteral("FishOutlineViewPboardType");
/// The kind of a copied record, as the tank file names it ("TankFish" ...).
inline const QString itemContext = QStringLiteral("ItemContext");

} // namespace brinemark::pasteboard
