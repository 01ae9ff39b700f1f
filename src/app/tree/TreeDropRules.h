// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/tree/TreeItem.h"

#include <memory>
#include <optional>

namespace brinemark
{

class TankList;

/// Where a drag hovers: the proposed parent row and the index among its children, or no index for a drop "on" the row.
struct DropProposal {
    TreeItem parent; ///< none for the root
    std::optional<int> childIndex;
};

enum class DropOperation { Refused, Copy, Move };

/// What is being dragged: a tank or a livestock record, kept alive until the drop.
struct DragData {
    std::shared_ptr<Tank> tank;
    std::shared_ptr<ItemData> record;
};

/// Whether a livestock record may land there: between the records of a group of its own kind. A drag that allows
/// nothing but copying copies, any other moves.
[[nodiscard]] DropOperation validateRecordDrop(const ItemData &dragged, const DropProposal &proposal,
                                               Qt::DropActions allowed);

/// The index at which a dragged tank would land, or nothing where the drop is refused: over empty space, or over its
/// own rows. Over another tank's rows it lands after that tank.
[[nodiscard]] std::optional<int> validateTankDrop(const TankList &list, const Tank &dragged,
                                                  const TreeItem &proposedRow);

/// Carries out a record drop that was not refused; answers the record that is to be selected (the copy, when copied).
std::shared_ptr<ItemData> acceptRecordDrop(const std::shared_ptr<ItemData> &dragged, const DropProposal &proposal,
                                           DropOperation operation);

/// Moves the tank to the index that `validateTankDrop` gave.
void acceptTankDrop(TankList &list, const Tank &dragged, int index);

} // namespace brinemark
