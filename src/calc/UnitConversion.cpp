// SPDX-License-Identifier: GPL-3.0-or-later

#include "calc/UnitConversion.h"

namespace brinemark
{

namespace
{

bool isKind(int kind)
{
    return kind >= 0 && kind < int(conversionKinds.size());
}

} // namespace

float convertUnits(int kind, int item, float value)
{
    if (!isKind(kind))
        return 0;
    const std::span<const Conversion> conversions = conversionKinds[std::size_t(kind)].conversions;
    if (item < 0 || item >= int(conversions.size()))
        return value;
    return float(conversions[std::size_t(item)](value));
}

QStringList conversionTitles(int kind)
{
    return isKind(kind) ? textItems(conversionKinds[std::size_t(kind)].menuKey) : QStringList();
}

QStringList conversionKindTitles()
{
    return textItems("ConvertKindMenu"_key);
}

} // namespace brinemark
