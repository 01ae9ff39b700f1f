// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemImage.h"
#include "ui/Shared.h"

#include <QObject>
#include <QSet>
#include <QThreadPool>

#include <atomic>
#include <deque>

namespace brinemark
{

class TankList;

/// Converts pictures to PNG in the background, so that saving finds them converted. Pictures of which no other copy is
/// left before their turn comes are passed over, so a closed document costs nothing.
class PictureConverter : public QObject, public Shared<PictureConverter>
{
    Q_OBJECT

public:
    ~PictureConverter() override;

    /// Call it whenever a picture has come into the document. One that is converted or waiting already costs nothing.
    void convertLater(const ItemImage &picture);
    void convertLater(const TankList &tanks); ///< the pictures of all livestock

Q_SIGNALS:
    void converted(); ///< one more picture was converted, or found not to be convertible

private:
    friend class Shared<PictureConverter>;
    PictureConverter();

    void startWaiting();
    void finished(ItemImage picture, const QByteArray &png);

    std::deque<ItemImage> m_waiting;
    QSet<quint64> m_known; ///< identities of the pictures that wait or are being converted
    int m_running = 0;
    std::atomic_bool m_ending = false;
    QThreadPool m_pool;
};

} // namespace brinemark
