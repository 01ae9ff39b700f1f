// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTest>

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

} // namespace brinemark::test
