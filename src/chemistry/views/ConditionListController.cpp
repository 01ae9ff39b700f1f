#include "chemistry/views/ConditionListController.h"

#include "base/text/DateText.h"
#include "chemistry/ConditionColumns.h"
#include "chemistry/TargetCheck.h"
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

#include <QHeaderView>
#include <QLocale>
#include <QScopedValueRollback>

#include <cmath>

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

constexpr int largestWidth = 1000; ///< pixels of a column

RecordColumn recordColumn(const ConditionColumnTraits &column)
{
    const bool date = column.identifier == u"date";
    return {.identifier = column.identifier,
            .header = column.headerKey,
            .kind = date ? ColumnKind::Date : ColumnKind::Number,
            .decimals = column.decimals,
            .width = column.width,
            .editable = true};
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
    QHeaderView &header = *table()->horizontalHeader();
    header.setSectionsMovable(true);
    header.setMaximumSectionSize(largestWidth);
    connect(&header, &QHeaderView::sectionMoved, this, [this] {
        if (!m_arranging)
            updateColumnInfo();
    });
    connect(&header, &QHeaderView::sectionResized, this,
            [this](int section, int, int width) { columnResized(section, width); });

    auto *corner = new HeaderCornerButton(*table(), "Ellipse", text("Customize condition columns"));
    corner->setObjectName(QStringLiteral("columnsButton"));
    connect(corner, &QToolButton::clicked, this, &ConditionListController::showCustomizeConditionColumns);
}

// ---- what stands in the cells

QString ConditionListController::cellText(const Record &record, int place) const
{
    const ShownColumn &column = m_shown[std::size_t(place)];
    return column.parameter ? column.formatter.stringForObjectValue(valueForKey(record, column.traits->identifier))
                            : RecordListController::cellText(record, place);
}

const TankData *ConditionListController::targetOf(const Record &record, const ShownColumn &column)
{
    const Tank *tank = record.tank;
    return tank && column.parameter ? tank->target(*column.parameter) : nullptr;
}

CellMark ConditionListController::cellMark(const Record &record, int place) const
{
    const ShownColumn &column = m_shown[std::size_t(place)];
    if (!column.parameter)
        return {.shape = CellMark::Shape::Opens};
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
    const ShownColumn &column = m_shown[std::size_t(place)];
    if (column.parameter) {
        const TankData *target = targetOf(record, column);
        const double value = valueForKey(record, column.traits->identifier).toDouble();
        const QString said = target ? targetStateText(*target, targetState(target, value)) : QString();
        return said.isEmpty() ? QString() : said;
    }
    return QLocale().toString(static_cast<const ConditionData &>(record).date, QLocale::LongFormat);
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
    for (const int column : columnsInDisplayOrder()) {
        const ConditionColumnTraits &traits = *m_shown[std::size_t(column)].traits;
        columns.push_back({traits.identifier.toString(), text(traits.headerKey)});
    }
    beginConditionExport(table()->window(), tank->shared_from_this(), std::move(columns));
}

std::vector<int> ConditionListController::columnsInDisplayOrder() const
{
    const QHeaderView &header = *table()->horizontalHeader();
    std::vector<int> columns;
    for (int place = 0; place < header.count(); ++place)
        columns.push_back(header.logicalIndex(place));
    return columns;
}

bool ConditionListController::validateMenuItem(int tag) const
{
    return tag != needsTwoRows || model().rowCount() >= 2;
}

// ---- the columns of a tank

void ConditionListController::addShownColumn(const ConditionColumnTraits &column)
{
    m_shown.push_back({&column, parameterFromIdentifier(column.identifier), conditionFormatter(column)});
    m_shownColumns.push_back(recordColumn(column));
}

std::span<const RecordColumn> ConditionListController::columnsFor(Tank *tank)
{
    if (!tank || m_shownTank.lock().get() != tank) {
        m_arranging = true; // until the tank's own widths are in place
        m_shown.clear();
        m_shownColumns.clear();
        if (tank) {
            for (const ShownConditionColumn &shown : shownConditionColumns(tank->condition()->columnInfoArray()))
                addShownColumn(*shown.column);
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

int ConditionListController::minimumWidth(int place) const
{
    constexpr int roomBesideHeader = 17; // margins and the sort indicator
    constexpr int roomBesideText = 16;
    const ShownColumn &column = m_shown[std::size_t(place)];
    const QFontMetrics header = table()->horizontalHeader()->fontMetrics();
    const int headerWidth = header.horizontalAdvance(text(column.traits->headerKey)) + roomBesideHeader;
    // A column in which no usual value could be read would be of no use.
    constexpr double usual = 88.888;
    const QString widest = column.parameter ? column.formatter.stringForObjectValue(usual)
                                            : localeDateText(QDate(2000, 12, 28).startOfDay());
    const int textWidth = table()->fontMetrics().horizontalAdvance(widest) + roomBesideText;
    return std::max({column.traits->width > 0 ? column.traits->width : headerWidth, textWidth});
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
            const double width =
                std::clamp(std::ceil(shown.width), double(minimumWidth(section)), double(largestWidth));
            header.resizeSection(section++, int(width));
        }
    }
    m_arranging = false;
}

void ConditionListController::columnResized(int section, int width)
{
    const int least = minimumWidth(section);
    if (width < least)
        table()->horizontalHeader()->resizeSection(section, least); // which leads here again
    else if (!m_arranging)
        updateColumnInfo();
}

void ConditionListController::updateColumnInfo()
{
    auto *condition = static_cast<Condition *>(model().container());
    if (!condition || !table())
        return;
    Condition::ColumnInfoArray columns;
    for (const int column : columnsInDisplayOrder())
        columns.push_back({m_shown[std::size_t(column)].traits->identifier.toString(),
                           double(table()->horizontalHeader()->sectionSize(column))});
    condition->setColumnInfoArray(columns);
}

// ---- choosing columns

bool ConditionListController::isColumnVisible(int tag) const
{
    return columnFromTag(tag) >= 0;
}

int ConditionListController::columnFromTag(int tag) const
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    return column ? model().columnOf(column->identifier) : -1;
}

void ConditionListController::toogleConditionColumn(int tag)
{
    if (!table() || !model().container())
        return;
    toggleColumnWithTag(tag, true);
    updateColumnInfo();
    updateDisplay();
}

void ConditionListController::toggleColumnWithTag(int tag, bool autoSize)
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    if (!column)
        return;
    table()->finishEditing();
    const QScopedValueRollback arranging(m_arranging, true);
    QHeaderView &header = *table()->horizontalHeader();
    if (const int shown = columnFromTag(tag); shown >= 0) {
        model().removeColumn(shown);
        m_shown.erase(m_shown.begin() + shown);
        m_shownColumns.erase(m_shownColumns.begin() + shown);
        return;
    }
    const int lastBefore = header.count() > 0 ? header.logicalIndex(header.count() - 1) : -1;
    addShownColumn(*column);
    model().appendColumn(m_shownColumns.back());
    const int added = header.count() - 1;
    header.resizeSection(added, minimumWidth(added));
    if (autoSize && lastBefore >= 0)
        header.resizeSection(lastBefore, minimumWidth(lastBefore)); // it fills the table no longer
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
