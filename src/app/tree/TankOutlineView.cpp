// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TankOutlineView.h"

#include "app/tree/PasteboardTypes.h"
#include "app/tree/TankTreeModel.h"
#include "base/text/Texts.h"
#include "ui/ReturnKey.h"
#include "ui/TruncatingDelegate.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr int iconExtent = 16;
constexpr int smallestColumnWidth = 80;
constexpr std::chrono::milliseconds openDelay(700);
constexpr int markRadius = 3;      // of the circle at the start of the drop mark, in pixels
constexpr int betweenRowsZone = 4; // pixels from a row's top or bottom edge within which a drop falls between rows

} // namespace

TankOutlineView::TankOutlineView(TankTreeModel &model, QWidget *parent)
    : QTreeView(parent)
    , m_model(model)
{
    setObjectName(QStringLiteral("tankList"));
    setAccessibleName(text("TankListLabel"));
    setModel(&model);
    setHeaderHidden(true);
    header()->setMinimumSectionSize(smallestColumnWidth);
    header()->setStretchLastSection(true);
    setUniformRowHeights(true);
    setIconSize({iconExtent, iconExtent});
    setItemDelegate(new TruncatingDelegate(this));
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    setExpandsOnDoubleClick(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false); // drawn in paintEvent(), because the tree's rules may move the drop elsewhere
    m_openTimer.setSingleShot(true);
    m_openTimer.setInterval(openDelay);
    connect(&m_openTimer, &QTimer::timeout, this, &TankOutlineView::openHovered);
    setFrameShape(QFrame::NoFrame);
}

void TankOutlineView::keyPressEvent(QKeyEvent *event)
{
    // While a name is edited, the editor passes on keys that it has handled, such as Return.
    if (state() == EditingState) {
        QTreeView::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        Q_EMIT deleteKeyPressed();
        return;
    }
    if (isPlainReturn(*event)) {
        if (!event->isAutoRepeat())
            Q_EMIT returnPressed(m_model.itemAt(currentIndex()));
        return;
    }
    QTreeView::keyPressEvent(event);
}

void TankOutlineView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    if (!byKeyboard) {
        const QModelIndex index = indexAt(event->pos());
        if (index.isValid())
            setCurrentIndex(index);
    }
    const QPoint position =
        byKeyboard ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()) : event->globalPos();
    Q_EMIT contextMenuRequested(position);
}

void TankOutlineView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const TreeItem item = m_model.itemAt(indexAt(event->position().toPoint()));
    QTreeView::mouseDoubleClickEvent(event);
    if (!item.isNone() && event->button() == Qt::LeftButton)
        Q_EMIT doubleClickedItem(item);
}

QItemSelectionModel::SelectionFlags TankOutlineView::selectionCommand(const QModelIndex &index,
                                                                      const QEvent *event) const
{
    // A click outside the rows, or a click with a modifier that would deselect the row, does not change the selection:
    // the right side of the window always shows something.
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    const auto command = QTreeView::selectionCommand(index, event);
    return command & QItemSelectionModel::Deselect ? QItemSelectionModel::NoUpdate : command;
}

void TankOutlineView::startDrag(Qt::DropActions)
{
    const QModelIndex index = currentIndex();
    QMimeData *data = writeItem ? writeItem(m_model.itemAt(index)) : nullptr;
    if (!data)
        return;
    QDrag drag(this);
    drag.setMimeData(data);
    drag.setPixmap(
        index.data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(iconExtent, iconExtent) * 2, devicePixelRatio()));
    drag.exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    closeOpened();
    if (dragEnded)
        dragEnded();
}

Qt::DropActions TankOutlineView::allowedActions(const QDropEvent &event)
{
    // Holding the copy key allows only copying.
    return event.modifiers() & Qt::ControlModifier ? Qt::CopyAction : event.possibleActions();
}

DropProposal TankOutlineView::proposalAt(const QPoint &position, TreeItem &row) const
{
    const QModelIndex index = indexAt(position);
    row = m_model.itemAt(index);
    if (!index.isValid())
        return {};
    const QRect rect = visualRect(index);
    const TreeItem parent = m_model.itemAt(index.parent());
    if (position.y() < rect.top() + betweenRowsZone)
        return {parent, index.row()};
    if (position.y() > rect.bottom() - betweenRowsZone) {
        // Below the row of a group that is expanded or empty is the position before its first record.
        if (row.isLivestockGroup() && (isExpanded(index) || row.container->isEmpty()))
            return {row, 0};
        return {parent, index.row() + 1};
    }
    return {row, {}};
}

void TankOutlineView::dragEnterEvent(QDragEnterEvent *event)
{
    const QMimeData *data = event->mimeData();
    if (data->hasFormat(pasteboard::livestock) || data->hasFormat(pasteboard::tank))
        event->accept();
    else
        event->ignore(); // the window accepts dropped files
}

// Used instead of autoExpandDelay, which would also collapse expanded rows, including those that contain the drop
// target.
void TankOutlineView::hoverOver(const QModelIndex &index)
{
    if (index == m_hovered)
        return;
    endHovering();
    m_hovered = index;
    const TreeItem item = m_model.itemAt(index);
    if (item.isExpandable() && takesDragged && takesDragged(item))
        m_openTimer.start();
}

void TankOutlineView::openHovered()
{
    if (!m_hovered.isValid() || isExpanded(m_hovered))
        return;
    const QScopedValueRollback hovering(m_hovering, true);
    expand(m_hovered);
    m_opened.append(m_hovered);
}

void TankOutlineView::endHovering()
{
    m_openTimer.stop();
    m_hovered = QModelIndex();
}

void TankOutlineView::closeOpened()
{
    endHovering();
    const QScopedValueRollback hovering(m_hovering, true);
    while (!m_opened.isEmpty()) {
        if (const QPersistentModelIndex row = m_opened.takeLast(); row.isValid())
            collapse(row);
    }
}

void TankOutlineView::dragMoveEvent(QDragMoveEvent *event)
{
    QTreeView::dragMoveEvent(event); // scrolls when the drag is near an edge
    hoverOver(indexAt(event->position().toPoint()));
    TreeItem row;
    const DropProposal proposal = proposalAt(event->position().toPoint(), row);
    const DropAnswer answer = validateDrop ? validateDrop(proposal, row, allowedActions(*event)) : DropAnswer{};
    m_dropMark.reset();
    if (answer.operation == DropOperation::Refused) {
        event->ignore();
    } else {
        m_dropMark = answer.retargeted.value_or(proposal);
        event->setDropAction(answer.operation == DropOperation::Copy ? Qt::CopyAction : Qt::MoveAction);
        event->accept();
    }
    viewport()->update();
}

void TankOutlineView::dragLeaveEvent(QDragLeaveEvent *event)
{
    closeOpened();
    m_dropMark.reset();
    viewport()->update();
    QTreeView::dragLeaveEvent(event);
}

void TankOutlineView::dropEvent(QDropEvent *event)
{
    endHovering();
    m_dropMark.reset();
    viewport()->update();
    TreeItem row;
    const DropProposal proposal = proposalAt(event->position().toPoint(), row);
    if (acceptDrop && acceptDrop(proposal, row, allowedActions(*event)))
        event->accept(); // the rows were rebuilt
    else
        event->ignore();
    closeOpened();
    stopAutoScroll();
    setState(NoState);
}

QLine TankOutlineView::dropMark(const DropProposal &proposal) const
{
    const QModelIndex parent = m_model.indexOf(proposal.parent);
    const int index = proposal.childIndex.value_or(0);
    const int rows = m_model.rowCount(parent);
    int y = 0;
    int x = 0;
    if (index < rows) {
        const QRect rect = visualRect(m_model.index(index, 0, parent));
        y = rect.top();
        x = rect.left();
    } else if (rows > 0) {
        QModelIndex last = m_model.index(rows - 1, 0, parent);
        x = visualRect(last).left();
        while (isExpanded(last) && m_model.rowCount(last) > 0)
            last = m_model.index(m_model.rowCount(last) - 1, 0, last);
        y = visualRect(last).bottom() + 1;
    } else {
        const QRect rect = visualRect(parent);
        y = rect.bottom() + 1;
        x = rect.left() + indentation();
    }
    // The end of a list can be below what is shown, at least by the thickness of the mark.
    y = std::clamp(y, markRadius, viewport()->height() - markRadius - 1);
    return {x, y, viewport()->width() - 4, y};
}

void TankOutlineView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (!m_dropMark)
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QLine line = dropMark(*m_dropMark);
    // Draw an outline in the background colour first, so that the mark is visible next to the selected row too.
    for (const QPen &pen : {QPen(palette().base(), 6), QPen(palette().highlight(), 2)}) {
        painter.setPen(pen);
        painter.drawEllipse(QPointF(line.p1()) + QPointF(markRadius, 0), markRadius, markRadius);
        painter.drawLine(line.p1() + QPoint(2 * markRadius, 0), line.p2());
    }
}

} // namespace brinemark

#include "moc_TankOutlineView.cpp"
