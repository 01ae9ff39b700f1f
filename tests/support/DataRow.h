// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTest>

namespace brinemark::test
{

/// A row of a data table, its values in the order of the columns.
template <class... Values>
void row(const char *name, const Values &...values)
{
    (QTest::newRow(name) << ... << values);
}

} // namespace brinemark::test
