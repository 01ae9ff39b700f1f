// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace brinemark
{

/// Shows a picture as large as it fits, smoothly scaled in its own proportions, or a placeholder when there is no
/// picture.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(const QSize &size, QWidget *parent = nullptr);

    void setImage(const QImage &image); ///< a null image shows the placeholder

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
    QPixmap m_scaled; ///< scaled for the screen on which it was last painted
};

} // namespace brinemark
