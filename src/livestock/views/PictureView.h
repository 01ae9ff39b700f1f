// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace brinemark
{

/// Shows a picture as large as fits, smoothly and in its own proportions; without one, the placeholder.
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
    QPixmap m_scaled; ///< for the screen it was last painted on
};

} // namespace brinemark
