// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <stdexcept>

namespace brinemark
{

/// Thrown when a tank or record cannot be built from its file form; the tank file reader catches it. The message is for
/// the log.
class TankReadError : public std::runtime_error
{
public:
    explicit TankReadError(const QString &reason)
        : std::runtime_error(reason.toStdString())
    {
    }
};

} // namespace brinemark
