// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/commands/Command.h"
#include "app/tree/TankOutlineView.h"
#include "model/ModelObserver.h"
#include "model/TankList.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <variant>

namespace brinemark
{

class Shell;
class TankTreeModel;

/// The tank tree's controller. It owns the list of tanks, knows the current tank, shows the main view that belongs to
/// the selected row, and carries out renaming, deleting, dragging, copying and pasting of tanks and livestock.
class TankListController : public QObject, public Shared<TankListController>, private ModelObserver
{
    Q_OBJECT

public:
    ~TankListController() override;

    /// Must be called before the first row is shown.
    void setShell(Shell &shell) { m_shell = &shell; }

    [[nodiscard]] TankList &list() { return m_list; }
    [[nodiscard]] Tank *currentTank() const;
    void setCurrentTank(Tank *tank);
    /// The tree view; the main window becomes its parent.
    [[nodiscard]] TankOutlineView *tankList() const { return m_outline; }

    [[nodiscard]] int selectedRow() const; ///< counts the visible rows from 0; -1 when none is selected
    void selectRow(int row);               ///< selects the first row when there is no such row
    [[nodiscard]] TreeItem currentSelectedItem() const;
    /// The livestock group of the selected record; for any other row the list of tanks. No caller yet.
    [[nodiscard]] std::variant<Container *, TankList *> currentSelectedArray();
    void select(const TreeItem &item); ///< expands the rows above it first

    void forgetRows();    ///< shows no row and selects none; called when all tanks are about to be deleted
    void reload();        ///< rebuilds the rows; expanded rows and the selection are kept
    void updateDisplay(); ///< reloads, decrements the change count and updates the main view
    void fitColumn();
    void outlineViewSelectionDidChange();

    void expandRows(Tank &tank); ///< expands or collapses the tank's rows as its flags say
    void expandTankItem();       ///< expands the selected row
    void collapseTankItem();
    [[nodiscard]] bool isExpanded(const TreeItem &item) const;

    void deleteTankEntry();
    void deleteItemDataEntry();
    void editName(); ///< starts the in-place editor on the selected row

    [[nodiscard]] bool canCopy() const;
    [[nodiscard]] bool canPaste() const;
    void copy();
    void paste();

    /// Opens the item editor for a record. Set by the application, since the tree does not know the editor.
    std::function<void(ItemData &)> openItemEditor;
    /// Empties the document; called after its last tank was deleted.
    std::function<void()> resetDocument;
    std::function<bool()> canDelete;
    /// Takes what the context menu and the keys send.
    std::function<void(Command)> performCommand;

private:
    [[nodiscard]] bool holds(const TreeItem &item) const; ///< whether it is still in the list of tanks
    friend class Shared<TankListController>;
    TankListController();

    void livestockChanged(Tank &, ContainerKind) override { updateDisplay(); }

    void connectOutline();
    [[nodiscard]] QModelIndex visibleIndex(int row) const; ///< invalid when there is no such visible row
    bool rename(const TreeItem &item, const QString &name);
    void rowExpanded(const QModelIndex &index, bool expanded);
    void doubleClickAction(const TreeItem &item);
    void returnAction(const TreeItem &item); ///< adds an entry to the list on screen; else as a double click
    void showContextMenu(const QPoint &globalPosition);
    void deleteTank(const std::shared_ptr<Tank> &tank);
    void deleteItem(const std::shared_ptr<ItemData> &item);
    void finishDeleting();

    QMimeData *writeItem(const TreeItem &item);
    [[nodiscard]] bool takesDragged(const TreeItem &row) const;
    TankOutlineView::DropAnswer validateDrop(const DropProposal &proposal, const TreeItem &row,
                                             Qt::DropActions allowed);
    bool acceptDrop(const DropProposal &proposal, const TreeItem &row, Qt::DropActions allowed);
    void showDropped(const TreeItem &item);

    Shell *m_shell = nullptr;
    TankList m_list;
    std::weak_ptr<Tank> m_currentTank;
    TankTreeModel *m_model;
    TreeItem m_selected; ///< the selection last shown; only compared, since it may have been deleted
    DragData m_dragData;
    bool m_rebuilding = false; ///< true while rows are rebuilt: expanding and selecting are then not the user's changes
    OwnedWidget<TankOutlineView> m_outline;
};

} // namespace brinemark
