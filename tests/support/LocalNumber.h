// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLocale>
#include <QString>

namespace brinemark::test
{

/// A number with a comma or a full stop, turned into the notation of the default locale.
inline QString local(QString number)
{
    const QString point = QLocale().decimalPoint();
    return number.replace(QLatin1Char('.'), QLatin1Char(',')).replace(QLatin1Char(','), point);
}

} // namespace brinemark::test
