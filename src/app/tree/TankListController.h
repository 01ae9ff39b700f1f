// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/tree/TankOutlineView.h"
#include "model/ModelObserver.h"
#include "model/TankList.h"
#include "ui/Shared.h"

#include <QPointer>

#include <variant>

namespace brinemark
{

class Shell;
class TankTreeModel;

/// The tank tree's controller: owns the list of tanks, knows the current one, turns the selection into the main view to
/// show, and carries out renaming, deleting, dragging, copying and pasting of tanks and livestock.
class TankListController : public QObject, public Shared<TankListController>, private ModelObserver
{
    Q_OBJECT

public:
    ~TankListController() override;

    /// Called once, before the first row is shown.
    void setShell(Shell &shell) { m_shell = &shell; }

    [[nodiscard]] TankList &list() { return m_list; }
    [[nodiscard]] Tank *currentTank() const;
    void setCurrentTank(Tank *tank);
    [[nodiscard]] TankOutlineView *tankList() const { return m_outline; } ///< the outline control; the window adopts it

    [[nodiscard]] int selectedRow() const; ///< counted over the visible rows, -1 when none is selected
    void selectRow(int row);               ///< a row that is not there selects the first
    [[nodiscard]] TreeItem currentSelectedItem() const;
    /// The list in which the selected livestock record stands; for any other row the list of tanks.
    [[nodiscard]] std::variant<Container *, TankList *> currentSelectedArray();
    void select(const TreeItem &item); ///< opens the rows above it first

    void forgetRows();    ///< the tanks are about to go: no row, no selection
    void reload();        ///< shows the tanks afresh: same rows open, same row selected
    void updateDisplay(); ///< the same, takes one change back and lets the main view follow
    void fitColumn();
    void outlineViewSelectionDidChange();

    void expandRows(Tank &tank); ///< opens the tank's rows that its flags say
    void expandTankItem();       ///< opens or closes the selected row
    void collapseTankItem();
    [[nodiscard]] bool isExpanded(const TreeItem &item) const;

    void deleteTankEntry();
    void deleteItemDataEntry();
    void editName(); ///< starts the in-place editor on the selected row

    [[nodiscard]] bool canCopy() const;
    [[nodiscard]] bool canPaste() const;
    void copy();
    void paste();

    /// Opens the item editor on a record; set by the application, which knows the editor.
    std::function<void(ItemData &)> openItemEditor;
    /// Empties the document when its last tank was deleted.
    std::function<void()> resetDocument;
    std::function<bool()> canDelete;

private:
    friend class Shared<TankListController>;
    TankListController();

    void livestockChanged(Tank &, ContainerKind) override { updateDisplay(); }

    void connectOutline();
    [[nodiscard]] QModelIndex visibleIndex(int row) const; ///< invalid when there is no such row
    bool rename(const TreeItem &item, const QString &name);
    void rowExpanded(const QModelIndex &index, bool expanded);
    void doubleClickAction(const TreeItem &item);
    void showContextMenu(const QPoint &globalPosition);
    void deleteTank(const std::shared_ptr<Tank> &tank);
    void deleteItem(const std::shared_ptr<ItemData> &item);
    void finishDeleting();

    QMimeData *writeItem(const TreeItem &item);
    TankOutlineView::DropAnswer validateDrop(const DropProposal &proposal, const TreeItem &row,
                                             Qt::DropActions allowed);
    bool acceptDrop(const DropProposal &proposal, const TreeItem &row, Qt::DropActions allowed);
    void showDropped(const TreeItem &item);

    Shell *m_shell = nullptr;
    TankList m_list;
    std::weak_ptr<Tank> m_currentTank;
    TankTreeModel *m_model;
    QPointer<TankOutlineView> m_outline;
    TreeItem m_selected; ///< as last shown; only compared, for by now it may be gone
    DragData m_dragData;
    bool m_rebuilding = false; ///< the rows are being put back: nobody has opened or selected anything
};

} // namespace brinemark
