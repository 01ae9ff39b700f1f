#include "chemistry/views/ConditionListController.h"

#include "chemistry/ConditionColumns.h"
#include "chemistry/views/ConditionColumnWindow.h"
#include "model/Tank.h"
#include "ui/IconButton.h"
#include "ui/Shell.h"
#include "ui/WindowPlacement.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>
#include <QToolButton>

#include <cmath>

namespace brinemark
{

namespace
{

constexpr RecordListTraits traits{
    ContainerKind::Condition,
    "ConditionItem"_key,
    "EmptyCondition"_key,
    &makeNewRecord<ConditionData>,
};

constexpr int largestWidth = 1000; ///< pixels of a column

RecordColumn recordColumn(const ConditionColumnTraits &column)
{
    const bool date = column.identifier == u"date";
    return {column.identifier, column.headerKey, date ? ColumnKind::Date : ColumnKind::Number,
            column.decimals,   Qt::AlignLeft,    column.width};
}

} // namespace

ConditionListController::ConditionListController()
    : RecordListController(traits)
{
}

ConditionListController::~ConditionListController()
{
    delete m_columnWindow;
}

void ConditionListController::viewMade()
{
    table()->horizontalHeader()->setSectionsMovable(true);
    table()->horizontalHeader()->setMaximumSectionSize(largestWidth);
    const auto changedByUser = [this] {
        if (!m_arranging)
            updateColumnInfo();
    };
    connect(table()->horizontalHeader(), &QHeaderView::sectionMoved, this, changedByUser);
    connect(table()->horizontalHeader(), &QHeaderView::sectionResized, this, changedByUser);

    QToolButton *columnsButton =
        makeIconButton("Ellipse", text("Customize condition columns"), QStringLiteral("columnsButton"));
    buttonRow()->addWidget(columnsButton);
    connect(columnsButton, &QToolButton::clicked, this, &ConditionListController::showCustomizeConditionColumns);
}

// ---- the columns of a tank

std::span<const RecordColumn> ConditionListController::columnsFor(Tank *tank)
{
    if (!tank || m_shownTank.lock().get() != tank) {
        m_arranging = true; // until the tank's own widths are in place
        m_shownColumns.clear();
        if (tank) {
            for (const ShownConditionColumn &shown : shownConditionColumns(tank->condition()->columnInfoArray()))
                m_shownColumns.push_back(recordColumn(*shown.column));
        }
    }
    return m_shownColumns;
}

void ConditionListController::tankShown(Tank *tank)
{
    if (m_arranging)
        arrangeColumns();
    m_shownTank = tank ? tank->weak_from_this() : std::weak_ptr<Tank>();
    showColumnChecks();
}

void ConditionListController::arrangeColumns()
{
    m_arranging = true;
    QHeaderView &header = *table()->horizontalHeader();
    for (int i = 0; i < header.count(); ++i)
        header.moveSection(header.visualIndex(i), i);
    if (const auto *condition = static_cast<const Condition *>(model().container())) {
        int section = 0;
        for (const ShownConditionColumn &shown : shownConditionColumns(condition->columnInfoArray())) {
            const RecordColumn &column = model().columns()[std::size_t(section)];
            const double width = shown.width > 0 ? std::ceil(shown.width) : ownWidth(column);
            header.resizeSection(section++, int(std::min(width, double(largestWidth))));
        }
    }
    m_arranging = false;
}

void ConditionListController::updateColumnInfo()
{
    auto *condition = static_cast<Condition *>(model().container());
    if (!condition || !table())
        return;
    const QHeaderView &header = *table()->horizontalHeader();
    Condition::ColumnInfoArray columns;
    for (int place = 0; place < header.count(); ++place) {
        const int section = header.logicalIndex(place);
        columns.push_back(
            {model().columns()[std::size_t(section)].identifier.toString(), double(header.sectionSize(section))});
    }
    condition->setColumnInfoArray(columns);
}

// ---- choosing columns

bool ConditionListController::isColumnVisible(int tag) const
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    return column && model().columnOf(column->identifier) >= 0;
}

void ConditionListController::toogleConditionColumn(int tag)
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    auto *condition = static_cast<Condition *>(model().container());
    if (!column || !condition || !table())
        return;
    updateColumnInfo();
    Condition::ColumnInfoArray columns = condition->columnInfoArray();
    const auto isColumn = [&](const ColumnInfo &info) { return info.identifier == column->identifier; };
    if (std::erase_if(columns, isColumn) == 0) {
        if (!columns.empty())
            columns.back().width = 0; // it filled the table's width and need not any longer
        columns.push_back({column->identifier.toString(), 0});
    }
    condition->setColumnInfoArray(columns);

    m_shownColumns.clear();
    for (const ShownConditionColumn &shown : shownConditionColumns(columns))
        m_shownColumns.push_back(recordColumn(*shown.column));
    {
        const QScopedValueRollback arranging(m_arranging, true);
        model().setColumns(m_shownColumns);
    }
    arrangeColumns();
    updateColumnInfo();
    updateDisplay();
}

void ConditionListController::showCustomizeConditionColumns()
{
    if (!m_columnWindow) {
        m_columnWindow = new ConditionColumnWindow(Shell::shared().mainWindow());
        connect(m_columnWindow, &ConditionColumnWindow::columnToggled, this,
                &ConditionListController::toogleConditionColumn);
    }
    showColumnChecks();
    showInFront(*m_columnWindow);
}

void ConditionListController::showColumnChecks()
{
    if (!m_columnWindow)
        return;
    const Container *list = model().container();
    m_columnWindow->showColumns(list ? list->tank()->name : QString(),
                                [this](int tag) { return isColumnVisible(tag); });
}

} // namespace brinemark
