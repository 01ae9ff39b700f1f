// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Product.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace brinemark::product
{

QString shortVersion()
{
    return QStringLiteral(BRINEMARK_VERSION);
}

QString buildVersion()
{
    return shortVersion();
}

quint32 packedVersion(const QString &version)
{
    constexpr quint32 release = 0x80, beta = 0x60;
    std::array<quint32, 4> numbers{};
    const QStringList parts = version.split(u'.');
    for (qsizetype i = 0; i < std::min<qsizetype>(parts.size(), 4); ++i)
        numbers[std::size_t(i)] = parts.at(i).toUInt();
    if (std::all_of(numbers.begin(), numbers.end(), [](quint32 number) { return number == 0; }))
        return 0;
    const quint32 major = std::min(numbers[0], 99U);
    const quint32 minor = std::min(numbers[1], 9U);
    const quint32 point = std::min(numbers[2], 9U);
    const quint32 build = std::min(numbers[3], 255U);
    return (major / 10 << 28) | (major % 10 << 24) | (minor << 20) | (point << 16) | ((build ? beta : release) << 8) |
           build;
}

} // namespace brinemark::product
