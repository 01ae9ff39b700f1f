// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Record.h"

#include <QString>

namespace brinemark
{

class StyledText;

/// An item that the keeper owns, and its number.
struct InventoryData final : Record {
    QString item;
    qint32 count = 1;

    explicit InventoryData(Tank *parent = nullptr);
    explicit InventoryData(Blank) {}

    [[nodiscard]] StyledText inventoryDataAttributedString() const; ///< captions and values, for reading and printing

    [[nodiscard]] RecordType recordType() const override { return RecordType::Inventory; }
    [[nodiscard]] std::shared_ptr<Record> copy() const override;
};

} // namespace brinemark
