// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemImage.h"
#include "ui/pictures/PictureCache.h"

#include <QAbstractScrollArea>
#include <QTimer>

class QMimeData;

namespace brinemark
{

/// The whole picture, fitted to the view. The wheel and the keys plus, minus and 0 (fitted) zoom; a double click
/// changes between fitted and full size, where a pixel of the picture is a pixel of the screen. A fitted picture can be
/// dragged out, a zoomed one is moved instead. Pictures can be dropped on the view, which offers them to its owner.
class CustomFishImageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit CustomFishImageView(QWidget *parent = nullptr);

    void setPicture(const ItemImage &picture); ///< fitted, unless it is the same as before
    [[nodiscard]] const ItemImage &picture() const { return m_picture; }

    [[nodiscard]] bool isFitted() const { return m_zoom == 0; }
    /// Screen pixels a pixel of the picture.
    [[nodiscard]] double scale() const { return isFitted() ? fittedScale() : m_zoom; }
    /// Where the picture lies on the viewport; parts of a zoomed one lie outside.
    [[nodiscard]] QRectF pictureRect() const;

    [[nodiscard]] QSize sizeHint() const override { return {400, 300}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {80, 60}; }

Q_SIGNALS:
    void pictureOffered(const QMimeData &data); ///< something was dropped that may be a picture

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    [[nodiscard]] double fittedScale() const;
    void zoomTo(double scale, const QPointF &fixedPoint); ///< the point of the viewport that stays where it is
    void fitScrollBars();
    void requestPicture();
    void showDecoded(const QImage &image);
    void startDrag();
    void setDragHovers(bool hovers);
    void updateCursor();

    ItemImage m_picture;
    QSize m_size;      ///< of the upright picture; not valid when it cannot be decoded
    double m_zoom = 0; ///< 0 while it is fitted
    QImage m_decoded;  ///< of the size that was last asked for, which painting scales to the present one
    PictureCache::Request m_request;
    QTimer m_requestLater; ///< while the view is being resized
    QPoint m_pressed;      ///< of the mouse, on the viewport
    QPoint m_scrolledAtPress;
    bool m_dragHovers = false;
};

} // namespace brinemark
