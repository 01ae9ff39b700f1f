// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/InventoryData.h"
#include "model/RecordContainer.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's inventory list.
class Inventory final : public RecordContainer<InventoryData>
{
public:
    explicit Inventory(Tank *parent)
        : RecordContainer(ContainerKind::Inventory, parent)
    {
    }

    [[nodiscard]] Records &inventoryArray() { return records(); }
    [[nodiscard]] const Records &inventoryArray() const { return records(); }

    /// The texts of the first five records, each followed by a comma and a blank.
    [[nodiscard]] QString metaInventoryString() const { return journalMetaString(*this, u"item"); }
};

} // namespace brinemark
