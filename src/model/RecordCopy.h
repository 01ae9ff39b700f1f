// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/RecordFields.h"

namespace brinemark
{

/// Copies the fields that the field table marks as copied, in the table's order, through setters where fields have one.
template <class R>
void copyFields(const R &from, R &to)
{
    for (const Field<R> &field : FieldTable<R>::fields) {
        if (field.copied == Copied::No)
            continue;
        if (field.setter)
            (to.*field.setter)(from.*std::get<bool R::*>(field.member));
        else
            std::visit([&](auto member) { to.*member = from.*member; }, field.member);
    }
}

/// A new record filled by copyFields.
template <class R>
[[nodiscard]] std::shared_ptr<R> makeCopy(const R &record)
{
    auto result = std::make_shared<R>();
    copyFields(record, *result);
    return result;
}

} // namespace brinemark
