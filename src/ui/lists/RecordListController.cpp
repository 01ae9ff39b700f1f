// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordListController.h"

#include "model/KeyAccess.h"
#include "model/Tank.h"
#include "model/TankList.h"
#include "ui/Alerts.h"
#include "ui/FinishTyping.h"
#include "ui/Shell.h"
#include "ui/UndoStep.h"
#include "ui/calendar/CalendarController.h"
#include "ui/lists/RecordCellText.h"
#include "ui/lists/RecordSelectionModel.h"

#include <QHeaderView>
#include <QMenu>
#include <QToolButton>
#include <QUndoStack>

namespace brinemark
{

RecordListController::RecordListController(const RecordListTraits &traits, std::unique_ptr<ColumnLayoutStore> layout)
    : m_traits(traits)
    , m_model(new RecordTableModel(traits.kind, *this, this))
{
    if (!layout)
        layout = std::make_unique<PreferenceColumnLayout>(traits.layoutName, traits.columns);
    m_columns = std::make_unique<RecordTableColumns>(traits.columns, std::move(layout), *m_model);
}

RecordListController::~RecordListController() = default;

Tank *RecordListController::currentTank()
{
    return Shell::shared().currentTank();
}

// ---- the view

QWidget *RecordListController::view()
{
    if (!m_page)
        makeView();
    return m_page;
}

void RecordListController::makeView()
{
    m_page = new RecordListPage(m_traits.kind, m_traits.emptySentenceKey);
    m_table = m_page->table();
    m_table->setModel(m_model);
    QItemSelectionModel *unasked = m_table->selectionModel();
    m_selection = new RecordSelectionModel(
        m_model, [this] { return sortPendingRow(); }, m_table);
    m_table->setSelectionModel(m_selection);
    delete unasked;
    m_columns->setTable(*m_table);

    connect(m_page, &RecordListPage::newRequested, this, &RecordListController::newEntry);
    connect(m_page, &RecordListPage::deleteRequested, this, &RecordListController::deleteSelected);
    m_table->openCell = [this](const QModelIndex &cell) { return displayCalendar(cell); };
    connect(m_table->horizontalHeader(), &QHeaderView::sectionPressed, this, [] {
        if (CalendarController::hasSharedInstance())
            CalendarController::sharedInstance().closeAndSave(false, false);
    });
    connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this, &RecordListController::headerClicked);
    connect(m_selection, &QItemSelectionModel::selectionChanged, this, &RecordListController::selectionDidChange);
    watchModel();
    makeMenus();
    viewMade();
    showTank(nullptr);
}

void RecordListController::watchModel()
{
    // Any row move or removal cancels the pending re-sort: its row number means another record now.
    const auto forget = [this] { setRowNeedsSort(-1); };
    connect(m_model, &QAbstractItemModel::layoutChanged, m_page, forget);
    // A model reset clears the selection without a signal. Rows that are inserted or removed may fill or empty the
    // table.
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(m_model, signal, m_page, forget);
        connect(m_model, signal, m_page, [this] { showEmptyState(); });
    }
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, m_page, [this] { finishTypingIn(*m_table); });
    connect(m_model, &QAbstractItemModel::modelReset, m_page, [this] {
        setRowNeedsSort(-1);
        showEmptyState();
        selectionDidChange();
    });
}

void RecordListController::makeMenus()
{
    if (m_traits.menu.empty())
        return;
    QMenu *contextMenu = makeListMenu(m_traits.menu, *this, m_table);
    contextMenu->setObjectName(QLatin1String(m_traits.menuName));
    m_table->menuAsked = [this, contextMenu](const QPoint &place) {
        finishTyping(m_table->window());
        if (!m_table->isEditingHeld()) // a sheet about the stored value has opened
            contextMenu->popup(place);
    };
    m_page->addActionMenu(makeListMenu(m_traits.menu, *this, m_page));
}

void RecordListController::setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton)
{
    view();
    showTank(currentTank());
    m_page->linkKeyViews(tankTree, helpButton);
}

void RecordListController::showTank(Tank *tank)
{
    const Container *list = m_model->container();
    const bool another = !tank || !list || list->tank() != tank;
    if (another)
        m_table->finishEditing();
    if (another && m_rowNeedsSort >= 0) // leaves the previous tank's list in order
        m_model->sortContainer();
    if (another)
        m_columns->showTank(tank);
    else
        m_model->refresh();
    tankShown();
    showTitle(tank);
    showSortIndicator();
    showEmptyState();
    selectionDidChange();
}

void RecordListController::showTitle(const Tank *tank)
{
    m_page->setTitle(tank ? tank->container(m_traits.kind)->name() : text(traitsOf(m_traits.kind).nameKey),
                     tank ? tank->name : QString());
}

void RecordListController::showEmptyState()
{
    m_page->showEmptyState(m_model->container() && m_model->rowCount() == 0);
}

void RecordListController::updateDisplay()
{
    if (m_page)
        showTank(currentTank());
}

void RecordListController::updateColumnInfo()
{
    m_columns->storePendingLayout();
}

// ---- the cells

QString RecordListController::cellText(const Record &record, int place) const
{
    return textOfCell(record, m_model->columns()[std::size_t(place)]);
}

CellMark RecordListController::cellMark(const Record &, int place) const
{
    const bool opensCalendar = m_model->columns()[std::size_t(place)].opensCalendar();
    return {.shape = opensCalendar ? CellMark::Shape::Opens : CellMark::Shape::None};
}

QString RecordListController::cellToolTip(const Record &record, int place) const
{
    return toolTipOfCell(record, m_model->columns()[std::size_t(place)]);
}

// ---- sorting

void RecordListController::showSortIndicator()
{
    const Container *list = m_model->container();
    const int section = list ? m_model->columnOf(list->sortIdentifier()) : -1;
    m_table->horizontalHeader()->setSortIndicator(section, !list || list->sortAscending() ? Qt::AscendingOrder
                                                                                          : Qt::DescendingOrder);
}

void RecordListController::headerClicked(int section)
{
    const std::optional<SortOrder> order = sortOrder();
    if (!order)
        return;
    finishTyping(m_table->window());
    const QString identifier = m_model->columns()[std::size_t(section)].identifier.toString();
    const bool turns = identifier == order->identifier;
    sort({identifier, turns != order->ascending});
}

std::vector<SortColumn> RecordListController::sortColumns() const
{
    std::vector<SortColumn> columns;
    for (const RecordColumn &column : m_traits.columns)
        columns.push_back({column.identifier.toString(), text(column.header)});
    return columns;
}

std::optional<SortOrder> RecordListController::sortOrder() const
{
    const Container *list = m_model->container();
    return list ? std::optional(SortOrder{list->sortIdentifier(), list->sortAscending()}) : std::nullopt;
}

void RecordListController::sort(const SortOrder &order)
{
    Container *list = m_model->container();
    if (!list || order == sortOrder())
        return;
    list->setSortAscending(order.ascending);
    list->setSortIdentifier(order.identifier);
    sortAndSelect();
    Shell::shared().documentModifiedWithChange(true);
}

void RecordListController::sortAndSelect(const std::shared_ptr<Record> &record)
{
    if (!m_page || !m_model->container())
        return;
    m_model->sortContainer();
    showSortIndicator();
    if (record)
        selectRecord(*record);
    else if (hasSelectedRow())
        m_table->scrollTo(m_selection->currentIndex()); // otherwise Delete would act on a row out of sight
    if (m_table->isVisible()) // an edit can be undone while another view is on screen
        m_table->setFocus();
}

void RecordListController::setRowNeedsSort(int row)
{
    m_rowNeedsSort = row;
    m_selection->setArmed(row >= 0);
}

bool RecordListController::sortPendingRow()
{
    const std::shared_ptr<Record> record = m_model->recordAt(m_rowNeedsSort);
    setRowNeedsSort(-1);
    // When no row moves, the new selection hits the record that it was aimed at.
    if (!record || !currentTank() || !m_model->sortContainer())
        return false;
    selectRecord(*record);
    m_table->setFocus();
    return true;
}

// ---- editing

UndoDictionary RecordListController::createUndoDictionaryWithData(const std::shared_ptr<Record> &record,
                                                                  const QString &key)
{
    return {record, valueForKey(*record, key), key};
}

bool RecordListController::storeValue(Record &record, const QString &key, const QVariant &value)
{
    return setValueForKey(record, key, value);
}

bool RecordListController::editCell(int row, int place, const QVariant &value)
{
    const std::shared_ptr<Record> record = m_model->recordAt(row);
    if (!record || !currentTank())
        return false;
    const RecordColumn column = m_model->columns()[std::size_t(place)];
    const QString key = column.identifier.toString();
    const UndoDictionary undo = createUndoDictionaryWithData(record, key);
    const bool isDate = column.kind == ColumnKind::Date;
    if (!value.isValid() || (isDate && !value.toDateTime().isValid()) || !storeValue(*record, key, value))
        return false;
    const bool changed = !isDate && valueForKey(*record, key).toString() != undo.value.toString();
    if (m_rowNeedsSort == -1 && m_model->container()->sortIdentifier() == key)
        setRowNeedsSort(row);
    m_model->showRow(row);
    Shell::shared().documentModifiedWithChange(true);
    Shell::shared().undoManager().push(
        new UndoStep(QLatin1String(m_traits.undoActionName), [list = QPointer(this), step = undo]() mutable {
            std::optional<UndoDictionary> opposite = list ? list->undoWithDictionary(step) : std::nullopt;
            if (opposite)
                step = *std::move(opposite);
            return opposite.has_value();
        }));
    cellEdited(*record, column, changed);
    return true;
}

bool RecordListController::displayCalendar(const QModelIndex &cell)
{
    const std::shared_ptr<Record> record = cell.isValid() ? m_model->recordAt(cell.row()) : nullptr;
    if (!record)
        return false;
    const RecordColumn &column = m_model->columns()[std::size_t(cell.column())];
    if (!column.opensCalendar())
        return false;
    m_table->finishEditing();
    const QString key = column.identifier.toString();
    const auto dateChosen = [list = QPointer(this), record, key](const QDateTime &date) {
        const Container *records = list ? list->m_model->container() : nullptr;
        const int row = records ? records->indexOf(record.get()) : -1;
        const int place = list ? list->m_model->columnOf(key) : -1;
        if (row >= 0 && place >= 0)
            list->editCell(row, place, date);
    };
    CalendarController::sharedInstance().setCalendar(dateChosen, m_table, key, m_table->visualRect(cell),
                                                     valueForKey(*record, key).toDateTime());
    return true;
}

std::optional<UndoDictionary> RecordListController::undoWithDictionary(const UndoDictionary &dictionary)
{
    const std::shared_ptr<Record> record = dictionary.data;
    const Tank *tank = record ? record->tank : nullptr;
    Container *list = tank ? tank->container(m_traits.kind) : nullptr;
    if (!list || Shell::shared().tankList().indexOf(tank) < 0 || !list->contains(record.get()))
        return std::nullopt;
    UndoDictionary opposite = createUndoDictionaryWithData(record, dictionary.identifier);
    storeValue(*record, dictionary.identifier, dictionary.value);
    if (list == m_model->container())
        sortAndSelect(record);
    else
        list->sort();
    Shell::shared().documentModifiedWithChange(m_traits.undoCountsUp);
    return opposite;
}

// ---- the selection

bool RecordListController::hasSelectedRow() const
{
    return m_page && m_selection->hasSelection();
}

std::vector<std::shared_ptr<Record>> RecordListController::selectedRecords() const
{
    std::vector<std::shared_ptr<Record>> records;
    if (!m_page)
        return records;
    for (const auto &[first, last] : rowRuns(m_selection->selection())) {
        for (int row = first; row <= last; ++row) {
            if (std::shared_ptr<Record> record = m_model->recordAt(row))
                records.push_back(std::move(record));
        }
    }
    return records;
}

bool RecordListController::selectRecord(const Record &record)
{
    const Container *list = m_model->container();
    const int row = m_page && list ? list->indexOf(&record) : -1;
    if (row < 0)
        return false;
    const QModelIndex cell = m_model->index(row, std::max(0, m_selection->currentIndex().column()));
    m_selection->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_table->scrollTo(cell);
    return true;
}

void RecordListController::selectionDidChange()
{
    const bool selected = hasSelectedRow();
    m_page->deleteButton()->setEnabled(selected);
    Shell::shared().setEnableDeleteButton(selected);
    Q_EMIT selectionChanged();
}

// ---- adding and deleting

void RecordListController::newEntry()
{
    Tank *tank = currentTank();
    if (!tank)
        return;
    finishTyping(Shell::shared().mainWindow());
    view();
    showTank(tank);
    const std::shared_ptr<Record> record = m_traits.makeRecord(*tank);
    m_model->append(record);
    sortAndSelect(record);
    const int row = m_selection->currentIndex().row();
    setRowNeedsSort(row);
    Shell::shared().documentModifiedWithChange(true);
    startNewRecord(m_table->firstTypableCell(row));
}

void RecordListController::startNewRecord(const QModelIndex &cell)
{
    m_table->editCell(cell);
}

void RecordListController::deleteSelected()
{
    if (!hasSelectedRow())
        return;
    finishTyping(Shell::shared().mainWindow());
    const Alert question = deletionAlert(formatText(text("StandardWarning"), {text(m_traits.itemKey)}));
    beginAlertSheet(Shell::shared().mainWindow(), question, [list = QPointer(this)](int answer) {
        if (list && answer == AlertDefault)
            list->deleteRecords(list->selectedRecords());
        Shell::shared().orderFrontAndCheckModified();
    });
}

void RecordListController::deleteRecords(const std::vector<std::shared_ptr<Record>> &records)
{
    Container *list = m_model->container();
    if (!list || records.empty())
        return;
    for (const auto &record : records)
        willDeleteRecord(*record);
    m_model->remove(records); // resets the model, which clears the selection
    if (m_traits.deletingCountsAChange)
        Shell::shared().documentModifiedWithChange(true);
}

// ---- changes of the model

void RecordListController::journalRecordInserted(Tank &tank, ContainerKind kind)
{
    const Container *list = m_model->container();
    if (!m_page || kind != m_traits.kind || !list || list->tank() != &tank)
        return;
    m_model->sortContainer();
    m_table->clearSelection();
}

void RecordListController::journalRecordRemoved(Tank &tank, ContainerKind kind)
{
    const Container *list = m_model->container();
    if (m_page && kind == m_traits.kind && list && list->tank() == &tank)
        updateDisplay();
}

} // namespace brinemark

#include "moc_RecordListController.cpp"
