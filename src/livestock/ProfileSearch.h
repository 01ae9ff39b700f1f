// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/ProfileCollection.h"

#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace brinemark
{

/// Searches a collection on a thread of its own and announces each hit on the thread that started the search. At most
/// one search runs: another start, stop() and the destructor end it first.
class ProfileSearch : public QObject
{
    Q_OBJECT

public:
    /// After each hit the search pauses, so that the list can be drawn: 3 ticks, sixtieths of a second.
    static constexpr std::chrono::milliseconds usualPause{50};

    explicit ProfileSearch(std::chrono::milliseconds pause = usualPause);
    ~ProfileSearch() override;

    /// Ends the search under way and starts another.
    void start(const QString &field, const QString &text, std::shared_ptr<const ProfileCollection> collection);
    /// Returns once the thread has finished, which it does at the next profile or in the middle of a pause. Nothing that
    /// it found is announced afterwards, not even hits that were on their way.
    void stop();

Q_SIGNALS:
    void foundFish(const SpeciesProfile &profile);
    void finished(); ///< the whole collection has been searched; never after stop()

private:
    void searchForFishWithArgs(int run, const QString &field, const QString &text, const ProfileCollection &collection);
    void pause();

    std::chrono::milliseconds m_pause;
    std::thread m_thread;
    std::mutex m_searchLock; ///< held by the search thread while it runs
    std::mutex m_pauseLock;
    std::condition_variable m_cancelled;
    std::atomic_bool m_cancelSearch = false;
    int m_run = 0; ///< what another run posts is out of date
};

} // namespace brinemark
