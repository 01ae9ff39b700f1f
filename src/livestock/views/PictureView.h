// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemImage.h"
#include "ui/pictures/PictureCache.h"

#include <QWidget>

namespace brinemark
{

/// Shows a picture as large as it fits, smoothly scaled in its own proportions, or a placeholder when there is none. It
/// stays empty while the picture is decoded in the background.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(const QSize &size, QWidget *parent = nullptr);

    void setPicture(const ItemImage &picture);

    /// Whether the placeholder is shown, since there is no picture or none that can be decoded.
    [[nodiscard]] bool showsPlaceholder() const { return !m_request && m_shown.isNull(); }

Q_SIGNALS:
    void decoded(bool ok); ///< the picture that was set last is on screen, or cannot be decoded

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void requestPicture();

    ItemImage m_picture;
    QImage m_shown; ///< scaled for the screen on which it was last painted
    qreal m_requestedRatio = 0;
    PictureCache::Request m_request;
};

} // namespace brinemark
