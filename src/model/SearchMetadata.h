// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

namespace brinemark
{

class Container;

/// Each record's name and scientific name in order, then the container's name; empty without records.
[[nodiscard]] QStringList livestockMetaArray(const Container &livestock);

/// The texts of the field `key` in a journal's first five records, each followed by a comma and a blank.
[[nodiscard]] QString journalMetaString(const Container &journal, QStringView key);

} // namespace brinemark
