// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Amount.h"
#include "model/ItemImage.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <array>
#include <variant>

namespace brinemark
{

/// How a field stands in the tank file.
enum class Encoding {
    Text,
    FlagText,    ///< "1" or "0"
    FloatText,   ///< at most seven significant digits
    WholeText,   ///< a float whose fraction is cut off on saving
    IntegerText, ///< 32 bits
    DateText,    ///< see base/text/DateText.h
    Number,      ///< a property-list integer or real as it is held
    Integer,     ///< a property-list integer
    Real,        ///< a property-list real
    Flag,        ///< a property-list boolean
    Picture,     ///< data
};

/// What reading does when the file has no such key.
enum class Missing {
    Zero,      ///< the field becomes 0 or NO
    Keep,      ///< the field stays as a blank record has it: not tested, no date, an empty text ...
    ReadFails, ///< the record cannot be read
};

/// What copying a record does with the field.
enum class Copied { Yes, No };

/// One field of a record of type R: the only place that knows its key, its file key, its type and its rules. The file,
/// key access, copying, sorting and whoever shows or undoes edits read it here.
template <class R>
struct Field {
    using Member =
        std::variant<float R::*, qint32 R::*, bool R::*, QString R::*, QDateTime R::*, Amount R::*, ItemImage R::*>;

    QStringView key;     ///< names the field in key access
    QStringView fileKey; ///< names it in the tank file
    Member member;
    Encoding encoding;
    Missing missing = Missing::Zero;
    Copied copied = Copied::Yes;
    QStringView onlyWith =
        {}; ///< the field is read only from records that hold this file key, else it counts as missing
    void (R::*setter)(bool) = nullptr; ///< for flags with an invariant; key access and copying go through it
};

/// Specialised for each record type with `static constexpr std::array fields` in the order of the struct.
template <class R>
struct FieldTable;

/// The field of a key, null for an unknown one.
template <class R>
[[nodiscard]] constexpr const Field<R> *fieldForKey(QStringView key)
{
    for (const Field<R> &field : FieldTable<R>::fields) {
        if (field.key == key)
            return &field;
    }
    return nullptr;
}

} // namespace brinemark
