#include "ui/RecordListController.h"

#include "base/text/DateText.h"
#include "base/text/Texts.h"
#include "model/Tank.h"
#include "ui/Alerts.h"
#include "ui/ContainerRooms.h"
#include "ui/EmptyState.h"
#include "ui/IconButton.h"
#include "ui/Icons.h"
#include "ui/RecordTableView.h"
#include "ui/Shell.h"
#include "ui/TitleLine.h"
#include "ui/TruncatingDelegate.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QStackedWidget>
#include <QToolButton>

namespace brinemark
{

RecordListController::RecordListController(const RecordListTraits &traits)
    : m_traits(traits)
    , m_model(new RecordTableModel(traits.kind, this))
{
}

RecordListController::~RecordListController()
{
    delete m_view;
}

Tank *RecordListController::currentTank()
{
    return Shell::shared().currentTank();
}

// ---- the view

QWidget *RecordListController::view()
{
    if (!m_view)
        makeView();
    return m_view;
}

void RecordListController::makeView()
{
    QString listName = traitsOf(m_traits.kind).listKey.toString();
    listName.chop(int(QStringLiteral("ListArray").size()));
    m_view = new QWidget;
    m_view->setObjectName(listName + QStringLiteral("View"));
    m_titleLine = new TitleLine;
    m_table = new RecordTableView([this] { deleteSelected(); });
    m_table->setObjectName(listName + QStringLiteral("List"));
    m_table->setAccessibleName(text(traitsOf(m_traits.kind).nameKey));
    m_table->setModel(m_model);
    m_table->setItemDelegate(new TruncatingDelegate(m_table));
    m_emptyState = new EmptyState(icon(roomOf(m_traits.kind).icon), text(m_traits.emptySentenceKey), text("NewTitle"));
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_table);
    m_pages->addWidget(m_emptyState);
    m_newButton = makeIconButton("New", text("NewButtonToolTip"), QStringLiteral("newButton"));
    m_deleteButton = makeIconButton("Remove", text("DeleteButtonToolTip"), QStringLiteral("deleteButton"));
    m_deleteButton->setEnabled(false);

    m_buttonRow = new QHBoxLayout;
    m_buttonRow->setContentsMargins(4, 4, 4, 4);
    m_buttonRow->setSpacing(4);
    m_buttonRow->addWidget(m_newButton);
    m_buttonRow->addWidget(m_deleteButton);
    m_buttonRow->addStretch();
    auto *column = new QVBoxLayout(m_view);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLine);
    column->addWidget(m_pages, 1);
    column->addLayout(m_buttonRow);

    connect(m_emptyState, &EmptyState::addRequested, this, &RecordListController::newEntry);
    connect(m_newButton, &QToolButton::clicked, this, &RecordListController::newEntry);
    connect(m_deleteButton, &QToolButton::clicked, this, &RecordListController::deleteSelected);
    connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this, &RecordListController::headerClicked);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RecordListController::selectionDidChange);
    // A reset takes the selection away without saying so; rows that come and go may empty the table.
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_model, signal, this, &RecordListController::showEmptyState);
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        showEmptyState();
        selectionDidChange();
    });
    viewMade();
    showTank(nullptr);
}

int RecordListController::ownWidth(const RecordColumn &column) const
{
    constexpr int roomBesideHeader = 32; // margins and the sort indicator
    constexpr int roomBesideText = 20;
    const QFontMetrics header = m_table->horizontalHeader()->fontMetrics();
    int width = std::max(column.width, header.horizontalAdvance(text(column.header)) + roomBesideHeader);
    if (column.kind == ColumnKind::Date) {
        const QDateTime longDate(QDate(2000, 12, 28), QTime(0, 0));
        width = std::max(width, m_table->fontMetrics().horizontalAdvance(localeDateText(longDate)) + roomBesideText);
    }
    return width;
}

void RecordListController::setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton)
{
    QWidget *shown = view();
    showTank(currentTank());
    QWidget::setTabOrder(tankTree, shown);
    QWidget::setTabOrder(shown, m_table);
    QWidget::setTabOrder(m_table, m_newButton);
    QWidget::setTabOrder(m_newButton, m_deleteButton);
    QWidget::setTabOrder(m_deleteButton, helpButton);
}

void RecordListController::showTank(Tank *tank)
{
    const Container *list = m_model->container();
    const bool another = !tank || !list || list->tank() != tank;
    const std::span<const RecordColumn> columns = columnsFor(tank);
    if (another) {
        m_model->setTank(tank, columns);
        for (int i = 0; i < int(columns.size()); ++i)
            m_table->setColumnWidth(i, ownWidth(columns[std::size_t(i)]));
    } else {
        m_model->refresh();
    }
    tankShown(tank);
    showTitle(tank);
    showSortIndicator();
    showEmptyState();
    selectionDidChange();
}

void RecordListController::showTitle(const Tank *tank)
{
    m_titleLine->setTitle(tank ? tank->container(m_traits.kind)->name() : text(traitsOf(m_traits.kind).nameKey));
    m_titleLine->setSecondary(tank ? tank->name : QString());
}

void RecordListController::showEmptyState()
{
    const bool empty = m_model->container() && m_model->rowCount() == 0;
    m_pages->setCurrentWidget(empty ? static_cast<QWidget *>(m_emptyState) : m_table);
}

void RecordListController::updateDisplay()
{
    if (m_view)
        showTank(currentTank());
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
    Container *list = m_model->container();
    if (!list)
        return;
    const QString identifier = m_model->columns()[std::size_t(section)].identifier.toString();
    if (identifier == list->sortIdentifier())
        list->setSortAscending(!list->sortAscending());
    list->setSortIdentifier(identifier);
    sortAndSelect();
    Shell::shared().documentModifiedWithChange(true);
}

void RecordListController::sortAndSelect(const std::shared_ptr<Record> &record)
{
    if (!m_view || !m_model->container())
        return;
    m_model->sortContainer();
    showSortIndicator();
    if (record)
        selectRecord(*record);
    m_table->setFocus();
}

// ---- the selection

bool RecordListController::hasSelectedRow() const
{
    return m_view && m_table->selectionModel()->hasSelection();
}

std::vector<std::shared_ptr<Record>> RecordListController::selectedRecords() const
{
    std::vector<std::shared_ptr<Record>> records;
    if (!m_view)
        return records;
    QList<std::pair<int, int>> ranges; // first and last rows; a range of a row selection covers all columns
    for (const QItemSelectionRange &range : m_table->selectionModel()->selection())
        ranges.append({range.top(), range.bottom()});
    std::sort(ranges.begin(), ranges.end());
    int next = 0;
    for (const auto &[first, last] : ranges) {
        for (int row = std::max(first, next); row <= last; ++row) {
            if (std::shared_ptr<Record> record = m_model->recordAt(row))
                records.push_back(std::move(record));
        }
        next = std::max(next, last + 1);
    }
    return records;
}

bool RecordListController::selectRecord(const Record &record)
{
    const Container *list = m_model->container();
    const int row = m_view && list ? list->indexOf(&record) : -1;
    if (row < 0)
        return false;
    m_table->selectRow(row);
    m_table->scrollTo(m_model->index(row, 0));
    return true;
}

void RecordListController::selectionDidChange()
{
    const bool selected = hasSelectedRow();
    m_deleteButton->setEnabled(selected);
    Shell::shared().setEnableDeleteButton(selected);
    Q_EMIT selectionChanged();
}

// ---- adding and deleting

void RecordListController::newEntry()
{
    Tank *tank = currentTank();
    if (!tank)
        return;
    view();
    showTank(tank);
    const std::shared_ptr<Record> record = m_traits.makeRecord(*tank);
    m_model->append(record);
    sortAndSelect(record);
    Shell::shared().documentModifiedWithChange(true);
}

void RecordListController::deleteSelected()
{
    if (!hasSelectedRow())
        return;
    const Alert question = deletionAlert(formatText(text("StandardWarning"), {text(m_traits.itemKey)}));
    beginAlertSheet(Shell::shared().mainWindow(), question, [this](int answer) {
        if (answer == AlertDefault)
            deleteRecords(selectedRecords());
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
    m_model->remove(records);
    m_table->clearSelection();
    if (m_traits.deletingCountsAChange)
        Shell::shared().documentModifiedWithChange(true);
}

// ---- what the model tells

void RecordListController::journalRecordInserted(Tank &tank, ContainerKind kind)
{
    const Container *list = m_model->container();
    if (!m_view || kind != m_traits.kind || !list || list->tank() != &tank)
        return;
    m_model->sortContainer();
    m_table->clearSelection();
}

void RecordListController::journalRecordRemoved(Tank &tank, ContainerKind kind)
{
    const Container *list = m_model->container();
    if (m_view && kind == m_traits.kind && list && list->tank() == &tank)
        updateDisplay();
}

} // namespace brinemark
