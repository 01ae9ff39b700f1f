// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace brinemark
{

class ItemImage;

/// The decoded pictures of the whole program, scaled to the size at which they are shown. Decodes in threads of its own
/// and keeps what was used last, up to a limit.
class PictureCache : public QObject, public Shared<PictureCache>
{
    Q_OBJECT

public:
    ~PictureCache() override;

    /// Receives the picture, or null when it cannot be decoded.
    using Ready = std::function<void(const QImage &)>;
    /// A picture that is waited for. Without it, the picture is no longer wanted: `Ready` is not called any more.
    using Request = std::shared_ptr<Ready>;

    /// Has the picture decoded as large as it fits into `box` (pixels). Calls `ready` before it returns if the picture
    /// is in the cache, and returns null then; otherwise calls it later, in the main thread.
    [[nodiscard]] Request request(const ItemImage &picture, const QSize &box, Ready ready);

    /// Waits until every picture that was asked for is there, for printing and for taking a picture of the window.
    void finishRequests();

    /// In bytes of decoded pixels; 128 MB unless it is changed.
    void setLimit(qsizetype bytes) { m_pictures.setMaxCost(bytes); }
    [[nodiscard]] qsizetype limit() const { return m_pictures.maxCost(); }
    [[nodiscard]] qsizetype used() const { return m_pictures.totalCost(); }

private:
    friend class Shared<PictureCache>;
    PictureCache();

    /// A picture's bytes never change under one identity, except to another encoding of the same pixels.
    using Key = std::pair<quint64, std::pair<int, int>>;
    void decoded(const Key &key, const QImage &image, const std::weak_ptr<Ready> &request);

    QCache<Key, QImage> m_pictures;
    QThreadPool m_pool;
};

} // namespace brinemark
