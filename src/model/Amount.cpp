// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Amount.h"

#include "base/text/NumberText.h"

#include <cmath>

namespace brinemark
{

double Amount::toDouble() const
{
    if (const qint64 *whole = integer())
        return double(*whole);
    const double *fractional = real();
    return fractional && !std::isnan(*fractional) ? *fractional : 0;
}

QVariant Amount::toVariant() const
{
    if (const qint64 *whole = integer())
        return QVariant::fromValue(*whole);
    const double *fractional = real();
    return fractional ? QVariant(*fractional) : QVariant();
}

Amount Amount::fromVariant(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toLongLong();
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QString:
        return leadingNumber(value.toString());
    default:
        return {};
    }
}

} // namespace brinemark
