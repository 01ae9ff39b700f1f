// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace brinemark
{

/// What stands above a printed or exported graph: two lines, each cut off with an ellipsis where it is too long.
/// Without a title there is no subtitle either.
struct GraphHeading {
    QString title;
    QString subtitle;
};

} // namespace brinemark
