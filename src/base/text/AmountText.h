// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QVariant>

namespace brinemark
{

/// An amount of money in the user's currency format. No amount, or something that is not a number, gives an empty text.
[[nodiscard]] QString formatObjectForLocale(const QVariant &amount);

} // namespace brinemark
