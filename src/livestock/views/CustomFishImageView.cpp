// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/CustomFishImageView.h"

#include "base/text/Texts.h"
#include "livestock/views/PictureDrop.h"
#include "model/pictures/PictureReader.h"
#include "ui/Colours.h"
#include "ui/Spacing.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <cmath>

namespace brinemark
{

namespace
{

constexpr double largestFittedScale = 2; // a small picture is not blown up to a large window
constexpr double largestScale = 8;
constexpr double zoomStep = 1.25;
constexpr int resizingPause = 120; // milliseconds
constexpr double frameRadius = 6;

} // namespace

CustomFishImageView::CustomFishImageView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAutoFillBackground(false);
    m_requestLater.setSingleShot(true);
    m_requestLater.setInterval(resizingPause);
    connect(&m_requestLater, &QTimer::timeout, this, &CustomFishImageView::requestPicture);
}

void CustomFishImageView::setPicture(const ItemImage &picture)
{
    const bool same = picture.identity() == m_picture.identity();
    m_picture = picture;
    if (same)
        return;
    m_size = readPictureHeader(picture.encoded()).size;
    m_zoom = 0;
    m_decoded = {};
    m_request = nullptr;
    fitScrollBars();
    requestPicture();
}

// ---- size and zoom

double CustomFishImageView::fittedScale() const
{
    if (!m_size.isValid())
        return 1;
    const QSizeF room = QSizeF(viewport()->size()) * devicePixelRatioF();
    const double fitting = std::min(room.width() / m_size.width(), room.height() / m_size.height());
    return std::min(fitting, largestFittedScale * devicePixelRatioF());
}

QRectF CustomFishImageView::pictureRect() const
{
    const QSizeF shown = QSizeF(m_size) * scale() / devicePixelRatioF();
    const auto start = [](const QScrollBar &bar, double room, double length) {
        return length > room ? -bar.value() : std::floor((room - length) / 2);
    };
    return {QPointF(start(*horizontalScrollBar(), viewport()->width(), shown.width()),
                    start(*verticalScrollBar(), viewport()->height(), shown.height())),
            shown};
}

void CustomFishImageView::fitScrollBars()
{
    const bool zoomed = m_size.isValid() && !isFitted();
    for (QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()}) {
        const bool across = bar->orientation() == Qt::Horizontal;
        const int room = across ? viewport()->width() : viewport()->height();
        const QSizeF shown = QSizeF(m_size) * scale() / devicePixelRatioF();
        const int length = zoomed ? int(std::ceil(across ? shown.width() : shown.height())) : 0;
        bar->setRange(0, std::max(0, length - room));
        bar->setPageStep(room);
        bar->setSingleStep(spacing::content * 2);
    }
    updateCursor();
    viewport()->update();
}

void CustomFishImageView::zoomTo(double scale, const QPointF &fixedPoint)
{
    if (!m_size.isValid())
        return;
    const double fitted = fittedScale();
    scale = std::clamp(scale, std::min(fitted, 1.0), std::max(fitted, largestScale));
    const QPointF inPicture = (fixedPoint - pictureRect().topLeft()) / this->scale();
    const bool wasFitted = isFitted();
    m_zoom = qFuzzyCompare(scale, fitted) ? 0 : scale;
    fitScrollBars();
    const QPointF moved = pictureRect().topLeft() + inPicture * this->scale() - fixedPoint;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
    if (wasFitted != isFitted())
        requestPicture();
}

void CustomFishImageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    fitScrollBars();
    m_requestLater.start();
}

void CustomFishImageView::showEvent(QShowEvent *event)
{
    QAbstractScrollArea::showEvent(event);
    requestPicture();
}

// ---- decoding and painting

void CustomFishImageView::requestPicture()
{
    m_requestLater.stop();
    if (!m_size.isValid() || !isVisible()) // a hidden one asks when it is shown, in the size that it has then
        return;
    // Zoomed, the whole picture is needed.
    const QSize box = isFitted() ? (QSizeF(m_size) * scale()).toSize().expandedTo({1, 1}) : QSize();
    m_request =
        PictureCache::sharedInstance().request(m_picture, box, [this](const QImage &image) { showDecoded(image); });
}

void CustomFishImageView::showDecoded(const QImage &image)
{
    m_decoded = image;
    m_request = nullptr;
    if (image.isNull())
        m_size = {};
    fitScrollBars();
}

void CustomFishImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    if (!m_decoded.isNull())
        painter.drawImage(pictureRect(), m_decoded);
    const QRectF frame = QRectF(viewport()->rect()).adjusted(1, 1, -1, -1);
    if (!m_picture.isNone() && !m_size.isValid())
        painter.drawText(frame, int(Qt::AlignCenter) | Qt::TextWordWrap, text("PictureUnreadable"));
    if (m_dragHovers)
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    else if (m_picture.isNone())
        painter.setPen(QPen(colour(ColourRole::SecondaryText, palette()), 1, Qt::DashLine));
    else if (hasFocus())
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
    else
        return;
    painter.drawRoundedRect(frame, frameRadius, frameRadius);
}

// ---- keys and mouse

void CustomFishImageView::wheelEvent(QWheelEvent *event)
{
    constexpr double notch = 120;
    if (m_size.isValid() && event->angleDelta().y() != 0)
        zoomTo(scale() * std::pow(zoomStep, event->angleDelta().y() / notch), event->position());
    event->accept();
}

void CustomFishImageView::keyPressEvent(QKeyEvent *event)
{
    const QPointF middle = QRectF(viewport()->rect()).center();
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // plus without Shift on many keyboards
        zoomTo(scale() * zoomStep, middle);
        break;
    case Qt::Key_Minus:
        zoomTo(scale() / zoomStep, middle);
        break;
    case Qt::Key_0:
        zoomTo(fittedScale(), middle);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void CustomFishImageView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        zoomTo(isFitted() ? 1 : fittedScale(), event->position());
}

void CustomFishImageView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->pos();
    m_scrolledAtPress = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    updateCursor();
}

void CustomFishImageView::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || !m_size.isValid())
        return;
    const QPoint moved = event->pos() - m_pressed;
    if (!isFitted()) {
        horizontalScrollBar()->setValue(m_scrolledAtPress.x() - moved.x());
        verticalScrollBar()->setValue(m_scrolledAtPress.y() - moved.y());
    } else if (moved.manhattanLength() >= QApplication::startDragDistance() &&
               pictureRect().contains(QPointF(m_pressed))) {
        startDrag();
    }
}

void CustomFishImageView::mouseReleaseEvent(QMouseEvent *)
{
    updateCursor();
}

void CustomFishImageView::updateCursor()
{
    const bool pressed = QApplication::mouseButtons() & Qt::LeftButton;
    if (m_size.isValid() && !isFitted())
        viewport()->setCursor(pressed ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    else
        viewport()->unsetCursor();
}

// ---- drag and drop

void CustomFishImageView::startDrag()
{
    constexpr QSize largest(256, 256);
    constexpr double opacity = 0.5;
    auto *drag = new QDrag(this);
    drag->setMimeData(pictureMimeData(m_picture));
    if (!m_decoded.isNull()) {
        const QImage small = m_decoded.scaled(m_decoded.size().boundedTo(largest * devicePixelRatioF()),
                                              Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPixmap pixmap(small.size());
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setOpacity(opacity);
        painter.drawImage(0, 0, small);
        painter.end();
        pixmap.setDevicePixelRatio(devicePixelRatioF());
        drag->setPixmap(pixmap);
        drag->setHotSpot(QRectF({}, pixmap.deviceIndependentSize()).center().toPoint());
    }
    drag->exec(Qt::CopyAction);
}

void CustomFishImageView::setDragHovers(bool hovers)
{
    m_dragHovers = hovers;
    viewport()->update();
}

void CustomFishImageView::dragEnterEvent(QDragEnterEvent *event)
{
    const bool own = event->source() == this;
    if (own || !mayHoldPicture(*event->mimeData()) || !(event->possibleActions() & Qt::CopyAction)) {
        event->ignore();
        return;
    }
    setDragHovers(true);
    dragMoveEvent(event);
}

void CustomFishImageView::dragMoveEvent(QDragMoveEvent *event)
{
    event->setDropAction(Qt::CopyAction); // a move would have the file manager delete the file
    event->accept();
}

void CustomFishImageView::dragLeaveEvent(QDragLeaveEvent *)
{
    setDragHovers(false);
}

void CustomFishImageView::dropEvent(QDropEvent *event)
{
    setDragHovers(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT pictureOffered(*event->mimeData());
}

} // namespace brinemark

#include "moc_CustomFishImageView.cpp"
