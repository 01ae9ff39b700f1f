// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Clock.h"

#include <QMutex>

#include <utility>

namespace brinemark::clock
{

namespace
{

/// Guarded by a mutex, because background threads may ask for the time too.
struct Held {
    QMutex mutex;
    std::optional<QDateTime> moment;
};

Held &held()
{
    static Held shared;
    return shared;
}

} // namespace

QDateTime now()
{
    Held &clock = held();
    const QMutexLocker lock(&clock.mutex);
    return clock.moment ? *clock.moment : QDateTime::currentDateTime();
}

FixedClock::FixedClock(const QDateTime &moment)
{
    const QMutexLocker lock(&held().mutex);
    m_before = std::exchange(held().moment, moment);
}

FixedClock::~FixedClock()
{
    const QMutexLocker lock(&held().mutex);
    held().moment = m_before;
}

void FixedClock::set(const QDateTime &moment)
{
    const QMutexLocker lock(&held().mutex);
    held().moment = moment;
}

void FixedClock::advance(std::chrono::milliseconds duration)
{
    const QMutexLocker lock(&held().mutex);
    held().moment = held().moment->addMSecs(duration.count());
}

} // namespace brinemark::clock
