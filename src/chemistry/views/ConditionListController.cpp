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
#include "ui/FinishTyping.h"
#include "ui/MenuTags.h"
#include "ui/Shell.h"
#include "ui/WindowPlacement.h"
#include "ui/lists/HeaderCornerButton.h"

#include <algorithm>
#include <array>

namespace brinemark
{

namespace
{

ConditionListController &conditions(RecordListController &list)
{
    return static_cast<ConditionListController &>(list);
}

constexpr std::array conditionMenu{
    ListMenuItem{"Graph"_key, menutag::TwoWaterTests,
                 [](RecordListController &list) { conditions(list).graphButtonAction(); }},
    ListMenuItem{"Export"_key, menutag::TwoWaterTests,
                 [](RecordListController &list) { conditions(list).exportAction(); }},
    ListMenuItem{},
    newListItem,
    deleteListItem(menutag::ConditionSelected),
    ListMenuItem{},
    ListMenuItem{"Condition Columns..."_key, 0,
                 [](RecordListController &list) { conditions(list).showCustomizeConditionColumns(); }},
};

constexpr RecordColumn recordColumn(const ConditionColumnTraits &column)
{
    const bool isDate = column.maximum == 0;
    return {.identifier = column.identifier,
            .header = column.headerKey,
            .kind = isDate ? ColumnKind::Date : ColumnKind::Number,
            .decimals = column.decimals,
            .leastWidth = column.width,
            .editable = true,
            .absentText = isDate ? TextKey() : "NotTested"_key};
}

constexpr auto conditionColumns = [] {
    std::array<RecordColumn, conditionColumnTable.size()> columns;
    std::transform(conditionColumnTable.begin(), conditionColumnTable.end(), columns.begin(), &recordColumn);
    return columns;
}();

constexpr RecordListTraits conditionTraits{
    .kind = ContainerKind::Condition,
    .itemKey = "ConditionItem"_key,
    .emptySentenceKey = "EmptyCondition"_key,
    .makeRecord = &makeNewRecord<ConditionData>,
    .columns = conditionColumns,
    .undoActionName = "ConditionUndo",
    .menuName = "conditionCM",
    .menu = conditionMenu,
};

/// The column layout is the tank's own and goes into its file.
class ConditionColumnLayout : public ColumnLayoutStore
{
public:
    [[nodiscard]] ColumnInfoArray read(const Tank &tank) const override
    {
        ColumnInfoArray layout;
        for (const ShownConditionColumn &shown : shownConditionColumns(tank.condition()->columnInfoArray()))
            layout.push_back({shown.column->identifier.toString(), shown.width});
        return layout;
    }

    void write(Tank *tank, const ColumnInfoArray &layout) override
    {
        if (tank)
            tank->condition()->setColumnInfoArray(layout);
    }
};

} // namespace

ConditionListController::ConditionListController()
    : RecordListController(conditionTraits, std::make_unique<ConditionColumnLayout>())
{
    m_all.reserve(conditionColumnTable.size());
    for (const ConditionColumnTraits &column : conditionColumnTable)
        m_all.push_back({&column, parameterFromIdentifier(column.identifier), conditionFormatter(column)});
}

ConditionListController::~ConditionListController() = default;

void ConditionListController::viewMade()
{
    table()->setItemDelegate(new CheckedCellDelegate(
        [this](const QModelIndex &cell) -> const SFCheckedFormatter * {
            const Column &column = columnAt(cell.column());
            return column.parameter ? &column.formatter : nullptr;
        },
        table()));

    auto *corner = new HeaderCornerButton(*table(), "Ellipse", text("Customize condition columns"));
    corner->setObjectName(QStringLiteral("columnsButton"));
    connect(corner, &QToolButton::clicked, this, &ConditionListController::showCustomizeConditionColumns);
}

// ---- the cells

const ConditionListController::Column &ConditionListController::columnAt(int place) const
{
    const QStringView identifier = model().columns()[std::size_t(place)].identifier;
    return *std::find_if(m_all.begin(), m_all.end(),
                         [&](const Column &column) { return column.traits->identifier == identifier; });
}

QString ConditionListController::cellText(const Record &record, int place) const
{
    const Column &column = columnAt(place);
    return column.parameter ? column.formatter.stringForObjectValue(valueForKey(record, column.traits->identifier))
                            : RecordListController::cellText(record, place);
}

const TankData *ConditionListController::targetOf(const Record &record, const Column &column)
{
    const Tank *tank = record.tank;
    return tank && column.parameter ? tank->target(*column.parameter) : nullptr;
}

CellMark ConditionListController::cellMark(const Record &record, int place) const
{
    const Column &column = columnAt(place);
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
    const Column &column = columnAt(place);
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
    if (table())
        table()->releaseEditing();
}

void ConditionListController::startNewRecord(const QModelIndex &cell)
{
    // The first time, a sheet explains what an empty cell means. The cell's editor opens when the sheet has closed.
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
    finishTyping(table()->window());
    updateColumnInfo(); // the graph draws a line for each column of the stored layout
    GraphController::sharedInstance().display();
}

void ConditionListController::exportAction()
{
    Tank *tank = currentTank();
    if (!tank || !table())
        return;
    finishTyping(table()->window());
    std::vector<CsvColumn> exported;
    for (const int column : columns().inDisplayOrder()) {
        const ConditionColumnTraits &traits = *columnAt(column).traits;
        exported.push_back({traits.identifier.toString(), text(traits.headerKey)});
    }
    beginConditionExport(table()->window(), tank->shared_from_this(), std::move(exported));
}

// ---- the columns

void ConditionListController::updateColumnInfo()
{
    columns().storeLayout();
}

int ConditionListController::columnFromTag(int tag) const
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    return column ? model().columnOf(column->identifier) : -1;
}

bool ConditionListController::isColumnVisible(int tag) const
{
    return columnFromTag(tag) >= 0;
}

void ConditionListController::toogleConditionColumn(int tag)
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    if (!column || !table() || !model().container())
        return;
    if (isColumnVisible(tag) && model().columnCount() == 1) { // a log without columns offers nothing to act on
        beep();
        return;
    }
    finishTyping(table()->window());
    columns().toggleColumn(column->identifier);
    // A column that appears belongs to the selected rows as well.
    QItemSelectionModel &selection = *table()->selectionModel();
    selection.select(selection.selection(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    updateDisplay();
    Shell::shared().documentModifiedWithChange(true); // unlike a moved or resized column
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
