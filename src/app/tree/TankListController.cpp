// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TankListController.h"

#include "app/tree/TankTreeModel.h"
#include "base/text/Texts.h"
#include "livestock/LivestockGroup.h"
#include "model/ModelContext.h"
#include "ui/Alerts.h"
#include "ui/ContainerRooms.h"
#include "ui/FinishTyping.h"
#include "ui/Shell.h"
#include "ui/UndoStep.h"

#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace brinemark
{

namespace
{

MainView viewOf(const TreeItem &item)
{
    if (item.isTank())
        return MainView::Tank;
    if (item.isRecord())
        return MainView::LivestockItem;
    return roomOf(item.container->kind()).view;
}

/// The command that adds an entry to the list of this row; none for rows without a list.
std::optional<Command> newEntryCommand(const TreeItem &item)
{
    switch (item.isNone() ? MainView::None : viewOf(item)) {
    case MainView::Conditions:
        return Command::NewWaterTest;
    case MainView::Schedule:
        return Command::NewActivity;
    case MainView::Inventory:
        return Command::NewInventory;
    case MainView::Expenses:
        return Command::NewExpense;
    case MainView::Notes:
        return Command::NewNote;
    default:
        return {};
    }
}

} // namespace

TankListController::TankListController()
    : m_model(new TankTreeModel(m_list, this))
    , m_outline(new TankOutlineView(*m_model))
{
    ModelContext::sharedInstance().setAppTankList(&m_list);
    m_model->hasCurrentTank = [this] { return currentTank() != nullptr; };
    m_model->rename = [this](const TreeItem &item, const QString &name) { return rename(item, name); };
    connectOutline();
}

TankListController::~TankListController()
{
    ModelContext::sharedInstance().setAppTankList(nullptr);
}

void TankListController::connectOutline()
{
    m_outline->validateDrop = [this](const auto &proposal, const auto &row, auto allowed) {
        return validateDrop(proposal, row, allowed);
    };
    m_outline->acceptDrop = [this](const auto &proposal, const auto &row, auto allowed) {
        return acceptDrop(proposal, row, allowed);
    };
    m_outline->takesDragged = [this](const TreeItem &row) { return takesDragged(row); };
    m_outline->writeItem = [this](const TreeItem &item) { return writeItem(item); };
    m_outline->dragEnded = [this] { m_dragData = {}; };
    connect(m_outline, &TankOutlineView::deleteKeyPressed, this, [this] { performCommand(Command::Delete); });
    connect(m_outline, &TankOutlineView::contextMenuRequested, this, &TankListController::showContextMenu);
    connect(m_outline, &TankOutlineView::doubleClickedItem, this, &TankListController::doubleClickAction);
    connect(m_outline, &TankOutlineView::returnPressed, this, &TankListController::returnAction);
    connect(m_outline, &QTreeView::expanded, this, [this](const QModelIndex &index) { rowExpanded(index, true); });
    connect(m_outline, &QTreeView::collapsed, this, [this](const QModelIndex &index) { rowExpanded(index, false); });
    connect(m_outline->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!m_rebuilding)
            outlineViewSelectionDidChange();
    });
}

Tank *TankListController::currentTank() const
{
    return m_currentTank.lock().get();
}

void TankListController::setCurrentTank(Tank *tank)
{
    m_currentTank = tank ? tank->weak_from_this() : std::weak_ptr<Tank>();
}

// ---- rows and selection

int TankListController::selectedRow() const
{
    int row = 0;
    const QModelIndex selected = m_outline->currentIndex();
    for (QModelIndex index = m_model->index(0, 0); index.isValid(); index = m_outline->indexBelow(index), ++row) {
        if (index == selected)
            return row;
    }
    return -1;
}

QModelIndex TankListController::visibleIndex(int row) const
{
    QModelIndex index = row < 0 ? QModelIndex() : m_model->index(0, 0);
    for (int i = 0; i < row && index.isValid(); ++i)
        index = m_outline->indexBelow(index);
    return index;
}

void TankListController::selectRow(int row)
{
    const QModelIndex index = visibleIndex(row);
    m_outline->setCurrentIndex(index.isValid() ? index : m_model->index(0, 0));
}

TreeItem TankListController::currentSelectedItem() const
{
    return m_model->itemAt(m_outline->currentIndex());
}

std::variant<Container *, TankList *> TankListController::currentSelectedArray()
{
    const TreeItem item = currentSelectedItem();
    if (item.isRecord())
        return item.container;
    return &m_list;
}

void TankListController::select(const TreeItem &item)
{
    const QModelIndex index = m_model->indexOf(item);
    if (!index.isValid())
        return;
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent())
        m_outline->expand(parent);
    m_outline->setCurrentIndex(index);
    m_outline->scrollTo(index);
}

void TankListController::forgetRows()
{
    // The current view must release its tank before the tank is destroyed.
    m_shell->changeView(MainView::None);
    const QScopedValueRollback rebuilding(m_rebuilding, true);
    const TankList going = std::exchange(m_list, {}); // keeps the tanks alive until no row points to them
    m_model->reload();
    m_selected = {};
    setCurrentTank(nullptr);
    m_dragData = {};
}

bool TankListController::holds(const TreeItem &item) const
{
    return m_list.indexOf(item.tank) >= 0 && (!item.record || item.container->contains(item.record));
}

void TankListController::reload()
{
    if (holds(m_selected)) // otherwise the name belongs to an item that was removed
        finishTypingIn(*m_outline);
    // The list may have changed already, so the selected item cannot be found through the rows of the model.
    int row = selectedRow();
    const TreeItem selected = m_selected.tank == currentTank() ? m_selected : TreeItem();
    const int scrolled = m_outline->verticalScrollBar()->value();
    {
        const QScopedValueRollback rebuilding(m_rebuilding, true);
        m_model->reload();
        for (const auto &tank : m_list)
            expandRows(*tank);
        // If the selected item was removed, select the row that is now in its place, or the nearest one above.
        QModelIndex again = m_model->indexOf(selected);
        for (; !again.isValid() && row >= 0; --row)
            again = visibleIndex(row);
        if (again.isValid())
            m_outline->setCurrentIndex(again);
        m_selected = currentSelectedItem();
    }
    m_outline->verticalScrollBar()->setValue(scrolled);
}

void TankListController::updateDisplay()
{
    reload();
    fitColumn();
    m_shell->documentModifiedWithChange(false);
    outlineViewSelectionDidChange();
}

void TankListController::fitColumn()
{
    m_outline->viewport()->update();
}

void TankListController::outlineViewSelectionDidChange()
{
    const TreeItem item = currentSelectedItem();
    m_selected = item;
    if (item.isNone()) {
        setCurrentTank(nullptr);
        m_shell->changeView(MainView::None);
    } else {
        setCurrentTank(item.tank);
        m_shell->changeView(viewOf(item));
    }
    m_outline->viewport()->update();
    m_shell->documentModifiedWithChange(true);
}

// ---- expanding and collapsing rows

void TankListController::expandRows(Tank &tank)
{
    const QScopedValueRollback rebuilding(m_rebuilding, true);
    m_outline->setExpanded(m_model->indexOf(TreeItem(tank)), tank.tankExpanded);
    for (Container *container : tank.tankItemsArray()) {
        const TreeItem item(*container);
        if (const bool *expanded = item.expandedFlag())
            m_outline->setExpanded(m_model->indexOf(item), *expanded);
    }
}

void TankListController::rowExpanded(const QModelIndex &index, bool expanded)
{
    const TreeItem item = m_model->itemAt(index);
    bool *flag = item.expandedFlag();
    if (m_rebuilding || m_outline->isHovering() || !flag)
        return;
    *flag = expanded;
    m_shell->documentModifiedWithChange(true);
    if (expanded)
        return;
    for (QModelIndex parent = m_outline->currentIndex().parent(); parent.isValid(); parent = parent.parent()) {
        if (parent == index) {
            m_outline->setCurrentIndex(index);
            break;
        }
    }
}

void TankListController::expandTankItem()
{
    m_outline->expand(m_outline->currentIndex());
}

void TankListController::collapseTankItem()
{
    m_outline->collapse(m_outline->currentIndex());
}

bool TankListController::isExpanded(const TreeItem &item) const
{
    return m_outline->isExpanded(m_model->indexOf(item));
}

void TankListController::doubleClickAction(const TreeItem &item)
{
    if (item.isTank())
        m_outline->expand(m_model->indexOf(item));
    else if (item.isRecord() && openItemEditor)
        openItemEditor(*item.record);
    else if (item.isLivestockGroup())
        m_outline->setExpanded(m_model->indexOf(item), !isExpanded(item));
}

void TankListController::returnAction(const TreeItem &item)
{
    if (const std::optional<Command> command = newEntryCommand(item))
        performCommand(*command);
    else
        doubleClickAction(item);
}

// ---- names

bool TankListController::rename(const TreeItem &item, const QString &name)
{
    if (name.trimmed().isEmpty())
        return false;
    // Undoing counts as a change as well: counted down, it could meet another change and hide that one from the
    // question before quitting.
    const auto afterwards = [this] {
        m_outline->viewport()->update();
        m_shell->documentModifiedWithChange(true);
        m_shell->changeView(m_shell->currentView()); // the current view shows the name too
    };
    QUndoStack &undo = m_shell->undoManager();
    const QString actionName = QStringLiteral("RenameUndo");
    const auto edit = [&](const auto &object, auto field) {
        const auto inDocument = [this, object] { return holds(TreeItem(*object)); };
        return editField(undo, actionName, object, field, name, inDocument, afterwards);
    };
    if (item.isRecord())
        return edit(std::static_pointer_cast<ItemData>(item.record->shared_from_this()), &ItemData::name);
    return item.isTank() && edit(item.tank->shared_from_this(), &Tank::name);
}

void TankListController::editName()
{
    m_outline->setFocus();
    m_outline->edit(m_outline->currentIndex());
}

// ---- deleting

void TankListController::deleteTankEntry()
{
    const TreeItem item = currentSelectedItem();
    if (!item.isTank())
        return;
    const Alert alert = deletionAlert(formatText(text("DeleteTankWarning"), {item.name()}));
    beginAlertSheet(m_shell->mainWindow(), alert, [this, tank = item.tank->shared_from_this()](int returnCode) {
        if (returnCode == AlertDefault)
            deleteTank(tank);
    });
}

void TankListController::deleteItemDataEntry()
{
    const TreeItem item = currentSelectedItem();
    if (!item.isRecord())
        return;
    const LivestockGroupTraits &traits = *livestockGroupTraits(item.container->kind());
    const Alert alert = deletionAlert(formatText(text(traits.deleteKey), {item.name()}));
    const auto record = std::static_pointer_cast<ItemData>(item.record->shared_from_this());
    beginAlertSheet(m_shell->mainWindow(), alert, [this, record](int returnCode) {
        if (returnCode == AlertDefault)
            deleteItem(record);
    });
}

void TankListController::deleteTank(const std::shared_ptr<Tank> &tank)
{
    const int index = m_list.indexOf(tank.get());
    if (index < 0)
        return;
    for (const auto &activity : tank->scheduleListArray())
        ModelContext::sharedInstance().postScheduleDataDeleted(*activity);
    m_list.removeAt(index);
    setCurrentTank(nullptr);
    if (m_list.isEmpty() && resetDocument)
        resetDocument();
    finishDeleting();
}

void TankListController::deleteItem(const std::shared_ptr<ItemData> &item)
{
    Tank *tank = currentTank();
    const std::optional<ContainerKind> kind = containerKindOf(item->itemContext());
    if (tank && kind) {
        Container &list = *tank->container(*kind);
        if (const int index = list.indexOf(item.get()); index >= 0)
            list.removeRecordAt(index);
    }
    finishDeleting();
}

void TankListController::finishDeleting()
{
    updateDisplay();
    m_shell->orderFrontAndCheckModified();
    outlineViewSelectionDidChange();
}

// ---- context menu

void TankListController::showContextMenu(const QPoint &globalPosition)
{
    const TreeItem item = currentSelectedItem();
    if (!item.isTank() && !item.isRecord())
        return;
    m_outline->setFocus(); // copy and paste act on the control with the focus
    auto *menu = new QMenu(m_outline);
    menu->setObjectName(QStringLiteral("tankListMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (item.isRecord())
        menu->addAction(text("Edit..."), this, [this, item] { doubleClickAction(item); });
    menu->addAction(text("MenuTreeRename"), this, &TankListController::editName);
    menu->addSeparator();
    const auto addCommand = [&](TextKey title, Command command, bool enabled) {
        menu->addAction(text(title), this, [this, command] { performCommand(command); })->setEnabled(enabled);
    };
    addCommand("MenuEditCopy"_key, Command::Copy, canCopy());
    addCommand("MenuEditPaste"_key, Command::Paste, canPaste());
    menu->addSeparator();
    addCommand("DeleteTitle"_key, Command::Delete, canDelete());
    menu->popup(globalPosition);
}

} // namespace brinemark

#include "moc_TankListController.cpp"
