// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>

#include <chrono>
#include <optional>

/// The program's only clock: no other code asks the system for the time, so that tests can set it.
namespace brinemark::clock
{

/// The present moment in local time.
[[nodiscard]] QDateTime now();

/// Makes now() return a fixed moment while this object lives. The destructor restores the previous FixedClock's moment
/// or the system time.
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
