// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"

#include <QString>

namespace brinemark::plist
{

/// The outcome of parsing a property list: the root value, or the reason (English, for the log) why there is none.
struct ReadResult {
    Value value;
    QString error;

    explicit operator bool() const { return error.isEmpty(); }
};

/// The readers refuse arrays and dictionaries nested deeper than this; real files nest six deep.
inline constexpr int maximumDepth = 256;

} // namespace brinemark::plist
