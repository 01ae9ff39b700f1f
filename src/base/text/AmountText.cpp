// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/AmountText.h"

#include <QLocale>

#include <cmath>

namespace brinemark
{

QString formatObjectForLocale(const QVariant &amount)
{
    bool isNumber = false;
    const double number = amount.isNull() ? 0.0 : amount.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? QLocale().toCurrencyString(number) : QString();
}

} // namespace brinemark
