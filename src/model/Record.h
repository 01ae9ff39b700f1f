// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/TankRef.h"

#include <memory>

namespace brinemark
{

/// The seven record types. The four livestock kinds share one (see `ItemData::itemContext`).
enum class RecordType { Item, Condition, Schedule, Inventory, Expense, Note, Target };

/// Constructor tag for records whose fields will be read from a file: gives plain values (zero, not tested, no date, no
/// text) instead of those of a new record.
struct Blank {
};

/// Base of all records of a tank. Records are held by `std::shared_ptr`, so that an undo step keeps a deleted one
/// alive.
struct Record : std::enable_shared_from_this<Record> {
    TankRef tank; ///< the record's tank; after the record's removal, its former tank

    virtual ~Record();

    [[nodiscard]] virtual RecordType recordType() const = 0;

    /// A copy without a tank. Each class decides which fields it copies: some are left out on purpose.
    [[nodiscard]] virtual std::shared_ptr<Record> copy() const = 0;

protected:
    Record() = default;
    explicit Record(Tank *parent)
        : tank(parent)
    {
    }
    Record(const Record &) = delete;
    Record &operator=(const Record &) = delete;
};

/// `record.copy()` as the record's own type.
template <class R>
[[nodiscard]] std::shared_ptr<R> copyOf(const R &record)
{
    return std::static_pointer_cast<R>(record.copy());
}

} // namespace brinemark
