// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileSearch.h"

namespace brinemark
{

ProfileSearch::ProfileSearch(std::chrono::milliseconds pause)
    : m_pause(pause)
{
}

ProfileSearch::~ProfileSearch()
{
    stop();
}

void ProfileSearch::start(const QString &field, const QString &text,
                          std::shared_ptr<const ProfileCollection> collection)
{
    stop();
    m_thread = std::thread([this, run = m_run, field, text, collection = std::move(collection)] {
        searchForFishWithArgs(run, field, text, *collection);
    });
}

void ProfileSearch::stop()
{
    ++m_run;
    if (!m_thread.joinable())
        return;
    {
        const std::scoped_lock pausing(m_pauseLock);
        m_cancelSearch = true;
    }
    m_cancelled.notify_all();
    m_thread.join();
    const std::scoped_lock searching(m_searchLock);
    m_cancelSearch = false;
}

void ProfileSearch::searchForFishWithArgs(int run, const QString &field, const QString &text,
                                          const ProfileCollection &collection)
{
    const std::scoped_lock searching(m_searchLock);
    const auto post = [&](auto announce) {
        QMetaObject::invokeMethod(
            this,
            [this, run, announce] {
                if (run == m_run)
                    announce();
            },
            Qt::QueuedConnection);
    };
    for (const SpeciesProfile &profile : collection.profiles()) {
        if (m_cancelSearch)
            break;
        if (!profileMatches(profile, field, text))
            continue;
        post([this, profile] { Q_EMIT foundFish(profile); });
        pause();
    }
    post([this] { Q_EMIT finished(); });
}

void ProfileSearch::pause()
{
    std::unique_lock pausing(m_pauseLock);
    m_cancelled.wait_for(pausing, m_pause, [this] { return m_cancelSearch.load(); });
}

} // namespace brinemark

#include "moc_ProfileSearch.cpp"
