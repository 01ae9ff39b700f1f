// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/pictures/PictureConverter.h"

#include "model/TankList.h"
#include "model/pictures/PngConversion.h"

#include <QThread>

namespace brinemark
{

namespace
{

constexpr int mostConverters = 4; // each holds one decoded picture

} // namespace

PictureConverter::PictureConverter()
{
    m_pool.setMaxThreadCount(qBound(1, QThread::idealThreadCount(), mostConverters));
    m_pool.setThreadPriority(QThread::LowPriority);
}

PictureConverter::~PictureConverter()
{
    // The threads post their results to this object. A large picture would take seconds to finish.
    m_ending = true;
    m_pool.waitForDone();
}

void PictureConverter::convertLater(const ItemImage &picture)
{
    if (picture.isConverted() || m_known.contains(picture.identity()))
        return;
    m_known.insert(picture.identity());
    m_waiting.push_back(picture);
    startWaiting();
}

void PictureConverter::convertLater(const TankList &tanks)
{
    for (const ItemImage &picture : unconvertedPictures(tanks))
        convertLater(picture);
}

void PictureConverter::startWaiting()
{
    while (!m_waiting.empty() && m_running < m_pool.maxThreadCount()) {
        const ItemImage picture = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (!picture.isUsedElsewhere()) {
            m_known.remove(picture.identity());
            continue;
        }
        ++m_running;
        m_pool.start([this, picture, bytes = picture.encoded()] {
            const QByteArray png = convertedToPng(bytes, &m_ending);
            QMetaObject::invokeMethod(
                this, [this, picture, png] { finished(picture, png); }, Qt::QueuedConnection);
        });
    }
}

void PictureConverter::finished(ItemImage picture, const QByteArray &png)
{
    --m_running;
    m_known.remove(picture.identity());
    picture.setConverted(png);
    startWaiting();
    Q_EMIT converted();
}

} // namespace brinemark

#include "moc_PictureConverter.cpp"
