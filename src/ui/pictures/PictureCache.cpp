// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/pictures/PictureCache.h"

#include "model/ItemImage.h"
#include "model/pictures/PictureReader.h"

#include <QCoreApplication>
#include <QThread>

namespace brinemark
{

namespace
{

constexpr qsizetype usualLimit = qsizetype(128) << 20; // bytes
constexpr int mostDecoders = 2;                        // each can need `mostDecodedMegabytes` for a moment

/// In a format that a window paints without converting it again.
QImage readyToPaint(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

} // namespace

PictureCache::PictureCache()
    : m_pictures(usualLimit)
{
    m_pool.setMaxThreadCount(qBound(1, QThread::idealThreadCount(), mostDecoders));
}

PictureCache::~PictureCache()
{
    // The decoders post their results to this object.
    m_pool.clear();
    m_pool.waitForDone();
}

PictureCache::Request PictureCache::request(const ItemImage &picture, const QSize &box, Ready ready)
{
    const Key key(picture.identity(), {box.width(), box.height()});
    if (const QImage *image = m_pictures.object(key)) {
        ready(QImage(*image)); // a copy, since the cache may drop its own
        return nullptr;
    }
    const auto request = std::make_shared<Ready>(std::move(ready));
    const std::weak_ptr<Ready> wanted = request;
    m_pool.start([this, key, box, bytes = picture.encoded(), wanted] {
        if (wanted.expired())
            return;
        const QImage image = readyToPaint(readPicture(bytes, box).image);
        QMetaObject::invokeMethod(
            this, [this, key, image, wanted] { decoded(key, image, wanted); }, Qt::QueuedConnection);
    });
    return request;
}

void PictureCache::decoded(const Key &key, const QImage &image, const std::weak_ptr<Ready> &request)
{
    // One that cannot be decoded is kept as well, so that it is not tried again for every view.
    m_pictures.insert(key, new QImage(image), qMax<qsizetype>(1, image.sizeInBytes()));
    if (const Request waiting = request.lock())
        (*waiting)(image);
}

void PictureCache::finishRequests()
{
    m_pool.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

} // namespace brinemark

#include "moc_PictureCache.cpp"
