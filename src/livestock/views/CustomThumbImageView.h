// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/views/PictureView.h"

namespace brinemark
{

/// The small picture beside a profile, which is pressed like a button.
class CustomThumbImageView : public PictureView
{
    Q_OBJECT

public:
    explicit CustomThumbImageView(const QSize &size, QWidget *parent = nullptr);

Q_SIGNALS:
    void clicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

} // namespace brinemark
