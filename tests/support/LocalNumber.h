// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLocale>
#include <QString>

namespace brinemark::test
{

/// A number written with a comma or a full stop, as a person of this locale types it.
inline QString local(QString number)
{
    const QString point = QLocale().decimalPoint();
    return number.replace(QLatin1Char('.'), QLatin1Char(',')).replace(QLatin1Char(','), point);
}

} // namespace brinemark::test
