// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/ConditionListController.h"

#include "chemistry/ConditionColumns.h"
#include "chemistry/TargetCheck.h"
#include "chemistry/views/CheckedCellDelegate.h"
#include "chemistry/views/ConditionColumnWindow.h"
#include "chemistry/views/ConditionExport.h"
#include "chemistry/views/GraphController.h"
#include "model/KeyAccess.h"
#include "model/Tank.h"
#include "ui/AlertPanelDontAskAgain.h"
#include "ui/Alerts.h"
#include "ui/Shell.h"
#include "ui/WindowPlacement.h"
#include "ui/lists/HeaderCornerButton.h"

namespace brinemark
{

namespace
{

constexpr int needsTwoRows = 100; ///< tag of what makes no sense with less

ConditionListController &conditions(RecordListController &list)
{
    return static_cast<ConditionListController &>(list);
}

constexpr std::array menu{
    ListMenuItem{"Graph"_key, needsTwoRows, [](RecordListController &list) { conditions(list).graphButtonAction(); }},
    ListMenuItem{"Export"_key, needsTwoRows, [](RecordListController &list) { conditions(list).exportAction(); }},
    ListMenuItem{},
    ListMenuItem{"NewTitle"_key, 0, [](RecordListController &list) { list.newEntry(); }},
    ListMenuItem{"DeleteTitle"_key, 14, [](RecordListController &) { Shell::shared().deleteItem(); }},
    ListMenuItem{},
    ListMenuItem{"Condition Columns..."_key, 0,
                 [](RecordListController &list) { conditions(list).showCustomizeConditionColumns(); }},
};

constexpr RecordListTraits traits{
    .kind = ContainerKind::Condition,
    .itemKey = "ConditionItem"_key,
    .emptySentenceKey = "EmptyCondition"_key,
    .makeRecord = &makeNewRecord<ConditionData>,
    .undoActionName = "ConditionUndo",
    .menuName = "conditionCM",
    .menu = menu,
};

} // namespace

ConditionListController::ConditionListController()
    : RecordListController(traits)
    , m_columns(model())
{
}

ConditionListController::~ConditionListController()
{
    delete m_columnWindow;
}

void ConditionListController::viewMade()
{
    m_columns.setTable(*table());
    table()->setItemDelegate(new CheckedCellDelegate(
        [this](const QModelIndex &cell) -> const SFCheckedFormatter * {
            const ConditionTableColumns::Column &column = m_columns.at(cell.column());
            return column.parameter ? &column.formatter : nullptr;
        },
        table()));

    auto *corner = new HeaderCornerButton(*table(), "Ellipse", text("Customize condition columns"));
    corner->setObjectName(QStringLiteral("columnsButton"));
    connect(corner, &QToolButton::clicked, this, &ConditionListController::showCustomizeConditionColumns);
}

// ---- what stands in the cells

QString ConditionListController::cellText(const Record &record, int place) const
{
    const ConditionTableColumns::Column &column = m_columns.at(place);
    return column.parameter ? column.formatter.stringForObjectValue(valueForKey(record, column.traits->identifier))
                            : RecordListController::cellText(record, place);
}

const TankData *ConditionListController::targetOf(const Record &record, const ConditionTableColumns::Column &column)
{
    const Tank *tank = record.tank;
    return tank && column.parameter ? tank->target(*column.parameter) : nullptr;
}

CellMark ConditionListController::cellMark(const Record &record, int place) const
{
    const ConditionTableColumns::Column &column = m_columns.at(place);
    if (!column.parameter)
        return RecordListController::cellMark(record, place);
    const double value = valueForKey(record, column.traits->identifier).toDouble();
    if (value < 0)
        return {.role = ColourRole::NotTested};
    switch (targetState(targetOf(record, column), value)) {
    case TargetState::Low:
        return {ColourRole::Out, CellMark::Shape::Below};
    case TargetState::High:
        return {ColourRole::Out, CellMark::Shape::Above};
    case TargetState::NotChecked:
    case TargetState::Within:
        break;
    }
    return {};
}

QString ConditionListController::cellToolTip(const Record &record, int place) const
{
    const ConditionTableColumns::Column &column = m_columns.at(place);
    const TankData *target = targetOf(record, column);
    if (!target)
        return RecordListController::cellToolTip(record, place);
    const double value = valueForKey(record, column.traits->identifier).toDouble();
    const QString said = targetStateText(*target, targetState(target, value));
    return said.isEmpty() ? QString() : said;
}

// ---- entering values

void ConditionListController::cellEdited(Record &record, const RecordColumn &column, bool changed)
{
    if (changed)
        warningCheckIdentifier(column.identifier, valueForKey(record, column.identifier).toDouble());
}

void ConditionListController::warningCheckIdentifier(QStringView identifier, double value)
{
    const ConditionColumnTraits *column = conditionColumnFromIdentifier(identifier);
    const Tank *tank = currentTank();
    if (!column || !tank)
        return;
    const std::optional<TargetWarning> warning = targetWarning(*tank, identifier, value, text(column->headerKey));
    if (!warning)
        return;
    if (table())
        table()->holdEditing();
    beginAlertSheet(Shell::shared().mainWindow(),
                    {.style = AlertStyle::Critical, .title = warning->title, .message = warning->message},
                    [list = QPointer(this)](int) {
                        if (list)
                            list->closeWarningSheet();
                    });
}

void ConditionListController::closeWarningSheet()
{
    Shell::shared().mainWindow()->activateWindow();
    if (table())
        table()->releaseEditing();
}

void ConditionListController::startNewRecord(const QModelIndex &cell)
{
    // What an empty cell means is said first, the first time; the cell is edited when that is read.
    table()->holdEditing();
    table()->editCell(cell);
    AlertPanelDontAskAgain::beginSheetForWindow(Shell::shared().mainWindow(),
                                                {.title = text("NotTestedDialogTitle"),
                                                 .message = text("NotTestedDialogMessage"),
                                                 .identifier = QStringLiteral("DontShowAgainNotTested")},
                                                [list = QPointer(this)](int, void *, const QString &) {
                                                    if (list)
                                                        list->closeWarningSheet();
                                                });
}

void ConditionListController::graphButtonAction()
{
    if (!table())
        return;
    table()->finishEditing();
    updateColumnInfo(); // whose lines the graph draws
    GraphController::sharedInstance().display();
}

void ConditionListController::exportAction()
{
    Tank *tank = currentTank();
    if (!tank || !table())
        return;
    table()->finishEditing();
    std::vector<CsvColumn> columns;
    for (const int column : m_columns.inDisplayOrder()) {
        const ConditionColumnTraits &traits = *m_columns.at(column).traits;
        columns.push_back({traits.identifier.toString(), text(traits.headerKey)});
    }
    beginConditionExport(table()->window(), tank->shared_from_this(), std::move(columns));
}

bool ConditionListController::validateMenuItem(int tag) const
{
    return tag != needsTwoRows || model().rowCount() >= 2;
}

// ---- the columns

std::span<const RecordColumn> ConditionListController::columnsFor(Tank *tank)
{
    return m_columns.columnsFor(tank);
}

void ConditionListController::tankShown(Tank *tank)
{
    m_columns.arrangeFor(tank);
    showColumnChecks();
}

void ConditionListController::updateColumnInfo()
{
    m_columns.updateColumnInfo();
}

bool ConditionListController::isColumnVisible(int tag) const
{
    return columnFromTag(tag) >= 0;
}

void ConditionListController::toogleConditionColumn(int tag)
{
    if (!table() || !model().container())
        return;
    table()->finishEditing();
    m_columns.toggleColumnWithTag(tag, true);
    QItemSelectionModel &selection = *table()->selectionModel();
    selection.select(selection.selection(), QItemSelectionModel::Select | QItemSelectionModel::Rows); // as wide as now
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

#include "moc_ConditionListController.cpp"
