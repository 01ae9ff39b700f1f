// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTest>

#include <tuple>

namespace brinemark::test
{

/// The columns of a data table: their types, and a name for each.
template <class... Values, class... Names>
void columns(const Names *...names)
{
    static_assert(sizeof...(Values) == sizeof...(Names));
    (QTest::addColumn<Values>(names), ...);
}

/// A row of a data table, its values in the order of the columns.
template <class... Values>
void row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}

/// The values of the present row, by the names of their columns: `const auto [day, text] = fetch<int, QString>("day",
/// "text");`. A lambda cannot capture such a name with every compiler; use QFETCH for it.
template <class... Values, class... Names>
std::tuple<Values...> fetch(const Names *...names)
{
    static_assert(sizeof...(Values) == sizeof...(Names));
    return {*static_cast<const Values *>(QTest::qData(names, qMetaTypeId<Values>()))...};
}

} // namespace brinemark::test
