// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Amount.h"
#include "model/ItemImage.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <array>
#include <string_view>
#include <variant>

namespace brinemark
{

/// How the tank file holds a field.
enum class Encoding {
    Text,
    FlagText,    ///< "1" or "0"
    FloatText,   ///< at most seven significant digits
    WholeText,   ///< a float whose fraction is cut off on saving
    IntegerText, ///< 32 bits
    DateText,    ///< see base/text/DateText.h
    Number,      ///< a property-list integer or real, whichever the record holds
    Integer,     ///< a property-list integer
    Real,        ///< a property-list real
    Flag,        ///< a property-list boolean
    Picture,     ///< data
};

/// How a list is ordered by a field.
enum class SortKind {
    None,   ///< never: lists of this record have no order of their own
    Date,   ///< by the moment; a record without a date comes first
    Number, ///< floats and whole numbers in single precision, amounts in double precision
    Text,   ///< by the case-folded text
    Flag,   ///< NO or 0 before everything else
};

/// What reading does when the file has no such key.
enum class Missing {
    Zero,      ///< the field becomes 0 or NO
    Keep,      ///< the field keeps the value of a blank record: not tested, no date, an empty text ...
    ReadFails, ///< the record cannot be read
};

/// What copying a record does with the field.
enum class Copied { Yes, No };

/// One field of a record of type R: the only place that states its key, its file key, its type and its rules. The file
/// reader and writer, key access, copying, sorting, the lists and their undo steps read it here.
template <class R>
struct Field {
    using Member =
        std::variant<float R::*, qint32 R::*, bool R::*, QString R::*, QDateTime R::*, Amount R::*, ItemImage R::*>;

    QStringView key;     ///< names the field in key access
    QStringView fileKey; ///< names the field in the tank file
    Member member;
    SortKind sortKind; ///< stands before the encoding, so that a row without it does not compile
    Encoding encoding;
    Missing missing = Missing::Zero;
    Copied copied = Copied::Yes;
    QStringView onlyWith = {};         ///< file key without which the field counts as missing too
    void (R::*setter)(bool) = nullptr; ///< for flags with an invariant; key access and copying call it
};

/// Specialised for each record type with `static constexpr std::array fields` in the order of the struct.
template <class R>
struct FieldTable;

/// Whether a list can be ordered by a field of this type in the way that its sort kind says.
template <class R>
[[nodiscard]] constexpr bool sortKindFitsType(const Field<R> &field)
{
    const bool isFloat = std::holds_alternative<float R::*>(field.member);
    switch (field.sortKind) {
    case SortKind::None:
        return true;
    case SortKind::Date:
        return std::holds_alternative<QDateTime R::*>(field.member);
    case SortKind::Number:
        return isFloat || std::holds_alternative<qint32 R::*>(field.member) ||
               std::holds_alternative<Amount R::*>(field.member);
    case SortKind::Text:
        return std::holds_alternative<QString R::*>(field.member);
    case SortKind::Flag:
        return isFloat || std::holds_alternative<bool R::*>(field.member);
    }
    return false;
}

/// A text as a view that can be compared at compile time.
[[nodiscard]] constexpr std::u16string_view characters(QStringView text)
{
    return {text.utf16(), std::size_t(text.size())};
}

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
