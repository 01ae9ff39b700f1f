// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

namespace brinemark
{

class Container;

/// Each record's name and scientific name in order, then, when there is any record, the container's name.
[[nodiscard]] QStringList livestockMetaArray(const Container &livestock);

/// The texts that a journal's first five records hold under the key, each followed by a comma and a blank.
[[nodiscard]] QString journalMetaString(const Container &journal, QStringView key);

} // namespace brinemark
