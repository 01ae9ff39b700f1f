// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/tree/TreeDropRules.h"

#include <QTimer>
#include <QTreeView>

#include <functional>

namespace brinemark
{

class TankTreeModel;

/// The view of the tank tree: a tree view with delete keys, a context menu, and drag and drop by the tree's rules. The
/// controller carries out the commands.
class TankOutlineView : public QTreeView
{
    Q_OBJECT

public:
    explicit TankOutlineView(TankTreeModel &model, QWidget *parent = nullptr);

    /// The result of asking where a dragged item may be dropped.
    struct DropAnswer {
        DropOperation operation = DropOperation::Refused;
        std::optional<DropProposal> retargeted; ///< where to draw the mark, if not at the proposed position
    };
    std::function<DropAnswer(const DropProposal &, const TreeItem &row, Qt::DropActions allowed)> validateDrop;
    std::function<bool(const DropProposal &, const TreeItem &row, Qt::DropActions allowed)> acceptDrop;
    /// Whether something below a row can take what is dragged, so that the row opens when the drag stays over it.
    std::function<bool(const TreeItem &row)> takesDragged;
    /// Returns the pasteboard data of a row, or null when the row cannot be dragged.
    std::function<QMimeData *(const TreeItem &)> writeItem;
    std::function<void()> dragEnded;

    /// Whether the row that opens or closes does so because of a drag: this is no choice of the user's to be kept.
    [[nodiscard]] bool isHovering() const { return m_hovering; }

Q_SIGNALS:
    void deleteKeyPressed();
    void contextMenuRequested(const QPoint &globalPosition);
    void doubleClickedItem(const brinemark::TreeItem &item);
    void returnPressed(const brinemark::TreeItem &item);

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
    void hoverOver(const QModelIndex &index); ///< expands a collapsed row after a drag has stayed over it for a while
    void openHovered();
    void endHovering();
    void closeOpened(); ///< collapses the rows that the drag has expanded
    [[nodiscard]] DropProposal proposalAt(const QPoint &position, TreeItem &row) const;
    [[nodiscard]] QLine dropMark(const DropProposal &proposal) const;
    [[nodiscard]] static Qt::DropActions allowedActions(const QDropEvent &event);

    TankTreeModel &m_model;
    std::optional<DropProposal> m_dropMark;
    QPersistentModelIndex m_hovered;       ///< the row under the drag
    QList<QPersistentModelIndex> m_opened; ///< the rows that the drag has expanded
    QTimer m_openTimer;
    bool m_hovering = false;
};

} // namespace brinemark
