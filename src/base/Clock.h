// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>

#include <chrono>
#include <optional>

/// The program's one clock. Nothing else asks the system for the time.
namespace brinemark::clock
{

/// The present moment in local time.
[[nodiscard]] QDateTime now();

/// Holds the clock at a moment for as long as it lives; the one before (or the system's) then goes on.
class FixedClock
{
public:
    explicit FixedClock(const QDateTime &moment);
    ~FixedClock();
    FixedClock(const FixedClock &) = delete;
    FixedClock &operator=(const FixedClock &) = delete;

    void set(const QDateTime &moment);
    void advance(std::chrono::milliseconds duration);

private:
    std::optional<QDateTime> m_before;
};

} // namespace brinemark::clock
