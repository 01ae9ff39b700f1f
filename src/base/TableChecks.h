// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

/// Compile-time checks that a table has the rows that an enum asks for. They are meant for `static_assert`s beside the
/// table, so that a new enumerator is reported by every table that has no row for it.
namespace brinemark
{

/// Whether a value of an enum has a name. Compilers write a value without one as a cast, "(Enum)17".
template <auto value>
consteval bool isEnumerator()
{
#ifdef _MSC_VER
    constexpr std::string_view function = __FUNCSIG__;
    return function.find("<(") == function.npos;
#else
    constexpr std::string_view function = __PRETTY_FUNCTION__;
    return function.find("= (") == function.npos;
#endif
}

template <class Enum, std::size_t known = 0>
consteval std::size_t countEnumerators()
{
    if constexpr (isEnumerator<Enum(known)>())
        return countEnumerators<Enum, known + 1>();
    else
        return known;
}

/// The number of values of an enum that counts from 0 without gaps. The compiler counts, so that there is no number and
/// no last enumerator to keep in step, and a `switch` over the enum needs no case for a count.
template <class Enum>
inline constexpr std::size_t enumCount = countEnumerators<Enum>();

namespace tablechecks
{
enum class Sample { First, Second, Third };
static_assert(enumCount<Sample> == 3, "this compiler writes unnamed values in another way: see isEnumerator");
} // namespace tablechecks

/// Whether row i belongs to value i, for every value: `valueOf` (a member or function of the row) is the row's value.
template <class Enum, class Table, class ValueOf = std::identity>
consteval bool rowsFollow(const Table &table, ValueOf valueOf = {})
{
    std::size_t i = 0;
    for (const auto &row : table) {
        if (std::invoke(valueOf, row) != Enum(i))
            return false;
        ++i;
    }
    return i == enumCount<Enum>;
}

/// The number of rows that belong to a value. Rows of no value have an empty optional.
template <class Enum, class Table, class ValueOf>
consteval std::size_t rowsOf(Enum value, const Table &table, ValueOf valueOf)
{
    std::size_t rows = 0;
    for (const auto &row : table)
        rows += std::invoke(valueOf, row) == value ? 1 : 0;
    return rows;
}

/// Whether every value has exactly one row, in any order.
template <class Enum, class Table, class ValueOf = std::identity>
consteval bool eachHasOneRow(const Table &table, ValueOf valueOf = {})
{
    for (std::size_t i = 0; i < enumCount<Enum>; ++i) {
        if (rowsOf(Enum(i), table, valueOf) != 1)
            return false;
    }
    return true;
}

/// Whether no value has two rows, for a table of some of the values.
template <class Enum, class Table, class ValueOf = std::identity>
consteval bool noneHasTwoRows(const Table &table, ValueOf valueOf = {})
{
    for (std::size_t i = 0; i < enumCount<Enum>; ++i) {
        if (rowsOf(Enum(i), table, valueOf) > 1)
            return false;
    }
    return true;
}

} // namespace brinemark
