// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/tree/TreeDropRules.h"

#include <QTimer>
#include <QTreeView>

#include <functional>

namespace brinemark
{

class TankTreeModel;

/// The outline control of the tank tree: a tree view with the delete keys, the context menu, and drags that follow the
/// rules of the tree. What a command does is the controller's.
class TankOutlineView : public QTreeView
{
    Q_OBJECT

public:
    explicit TankOutlineView(TankTreeModel &model, QWidget *parent = nullptr);

    /// Asked while a drag hovers; answers the rows between which it may land (none: refused) and what it would do.
    struct DropAnswer {
        DropOperation operation = DropOperation::Refused;
        std::optional<DropProposal> retargeted; ///< where to show the mark when it is not the proposal itself
    };
    std::function<DropAnswer(const DropProposal &, const TreeItem &row, Qt::DropActions allowed)> validateDrop;
    std::function<bool(const DropProposal &, const TreeItem &row, Qt::DropActions allowed)> acceptDrop;
    /// The pasteboard form of the dragged row; null when it cannot be dragged.
    std::function<QMimeData *(const TreeItem &)> writeItem;
    std::function<void()> dragEnded;

Q_SIGNALS:
    void deleteKeyPressed();
    void contextMenuRequested(const QPoint &globalPosition);
    void doubleClickedItem(const brinemark::TreeItem &item);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions supported) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;

private:
    void hoverOver(const QModelIndex &index); ///< opens a closed row over which a drag stays
    void endHovering();
    [[nodiscard]] DropProposal proposalAt(const QPoint &position, TreeItem &row) const;
    [[nodiscard]] QLine dropMark(const DropProposal &proposal) const;
    [[nodiscard]] static Qt::DropActions allowedActions(const QDropEvent &event);

    TankTreeModel &m_model;
    std::optional<DropProposal> m_dropMark;
    QPersistentModelIndex m_hovered; ///< the row below a drag
    QTimer m_openTimer;
};

} // namespace brinemark
