// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <stdexcept>

namespace brinemark
{

/// Why a tank or record could not be built from its file form. For the log; thrown while reading and caught by the tank
/// file reader.
class TankReadError : public std::runtime_error
{
public:
    explicit TankReadError(const QString &reason)
        : std::runtime_error(reason.toStdString())
    {
    }
};

} // namespace brinemark
