// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/tree/TreeItem.h"

#include <memory>
#include <optional>

namespace brinemark
{

class TankList;

/// The position of a drag: a parent row and the index among its children, or no index for a drop on the row itself.
struct DropProposal {
    TreeItem parent; ///< empty for the top level
    std::optional<int> childIndex;
};

enum class DropOperation { Refused, Copy, Move };

/// The dragged tank or livestock record, kept alive until the drop.
struct DragData {
    std::shared_ptr<Tank> tank;
    std::shared_ptr<ItemData> record;
};

/// Whether a record can be dropped somewhere below the row: below a tank, and below a group of the record's own kind.
[[nodiscard]] bool takesRecord(const TreeItem &row, const ItemData &dragged);

/// Whether a livestock record may be dropped at the position: between the rows of a group of its own kind. A drag that
/// allows only copying copies the record; any other moves it.
[[nodiscard]] DropOperation validateRecordDrop(const ItemData &dragged, const DropProposal &proposal,
                                               Qt::DropActions allowed);

/// The index at which a dragged tank would be inserted: after the tank to which the row under the drag belongs. Returns
/// nullopt, so that the drop is refused, over empty space and over the tank's own rows.
[[nodiscard]] std::optional<int> validateTankDrop(const TankList &list, const Tank &dragged,
                                                  const TreeItem &proposedRow);

/// Carries out a record drop; returns the record to select: the dragged one or its copy. Returns null when the drop is
/// refused.
std::shared_ptr<ItemData> acceptRecordDrop(const std::shared_ptr<ItemData> &dragged, const DropProposal &proposal,
                                           DropOperation operation);

/// Moves the tank to the index that `validateTankDrop` returned.
void acceptTankDrop(TankList &list, const Tank &dragged, int index);

} // namespace brinemark
