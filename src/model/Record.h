// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/TankRef.h"

#include <memory>

namespace brinemark
{

/// The seven shapes of record. The four livestock kinds share one shape (see `ItemData::itemContext`).
enum class RecordType { Item, Condition, Schedule, Inventory, Expense, Note, Target };

/// Asks a record's constructor for plain values (zero, not tested, no date, no text) instead of the values of a new
/// record: for records whose fields are about to be filled from a file.
struct Blank {
};

/// What all records of a tank have in common. Records are held by `std::shared_ptr`, so that an undo step keeps a
/// deleted one alive.
struct Record : std::enable_shared_from_this<Record> {
    TankRef tank; ///< the tank that it belongs to or, after its removal, belonged to

    virtual ~Record();

    [[nodiscard]] virtual RecordType recordType() const = 0;

    /// A new record of the same class without a tank, filled by the class's own rules: some fields are left out on
    /// purpose.
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

/// `record.copy()` under the record's own type.
template <class R>
[[nodiscard]] std::shared_ptr<R> copyOf(const R &record)
{
    return std::static_pointer_cast<R>(record.copy());
}

} // namespace brinemark
