// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/ConditionTableColumns.h"

#include "base/text/DateText.h"
#include "chemistry/ConditionColumns.h"
#include "model/Tank.h"
#include "ui/lists/RecordTableModel.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <cmath>

namespace brinemark
{

namespace
{

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

ConditionTableColumns::ConditionTableColumns(RecordTableModel &model)
    : m_model(model)
{
    m_all.reserve(conditionColumnTable.size());
    for (const ConditionColumnTraits &column : conditionColumnTable)
        m_all.push_back({&column, parameterFromIdentifier(column.identifier), conditionFormatter(column)});
}

void ConditionTableColumns::setTable(QTableView &table)
{
    m_table = &table;
    header().setSectionsMovable(true);
    header().setMaximumSectionSize(largestWidth);
    connect(&header(), &QHeaderView::sectionMoved, this, [this] {
        if (!m_arranging)
            updateColumnInfo();
    });
    connect(&header(), &QHeaderView::sectionResized, this,
            [this](int section, int, int width) { sectionResized(section, width); });
}

QHeaderView &ConditionTableColumns::header() const
{
    return *m_table->horizontalHeader();
}

const ConditionTableColumns::Column &ConditionTableColumns::at(int column) const
{
    const QStringView identifier = m_model.columns()[std::size_t(column)].identifier;
    return *std::find_if(m_all.begin(), m_all.end(),
                         [&](const Column &one) { return one.traits->identifier == identifier; });
}

std::span<const RecordColumn> ConditionTableColumns::columnsFor(Tank *tank)
{
    if (!tank || m_tank.lock().get() != tank) {
        m_arranging = true; // until the tank's own widths are in place
        m_columns.clear();
        if (tank) {
            for (const ShownConditionColumn &shown : shownConditionColumns(tank->condition()->columnInfoArray()))
                m_columns.push_back(recordColumn(*shown.column));
        }
    }
    return m_columns;
}

void ConditionTableColumns::arrangeFor(Tank *tank)
{
    m_tank = tank ? tank->weak_from_this() : std::weak_ptr<Tank>();
    if (!m_arranging)
        return;
    for (int i = 0; i < header().count(); ++i)
        header().moveSection(header().visualIndex(i), i);
    if (tank) {
        int section = 0;
        for (const ShownConditionColumn &shown : shownConditionColumns(tank->condition()->columnInfoArray())) {
            const double width =
                std::clamp(std::ceil(shown.width), double(minimumWidth(section)), double(largestWidth));
            header().resizeSection(section++, int(width));
        }
    }
    m_arranging = false;
}

int ConditionTableColumns::minimumWidth(int column) const
{
    constexpr int roomBesideHeader = 17; // margins and the sort indicator
    constexpr int roomBesideText = 16;
    const Column &shown = at(column);
    const int headerWidth = header().fontMetrics().horizontalAdvance(text(shown.traits->headerKey)) + roomBesideHeader;
    // A column in which no usual value could be read would be of no use.
    constexpr double usual = 88.888;
    const QString widest = shown.parameter ? shown.formatter.stringForObjectValue(usual)
                                           : localeDateText(QDate(2000, 12, 28).startOfDay());
    const int textWidth = m_table->fontMetrics().horizontalAdvance(widest) + roomBesideText;
    return std::max(shown.traits->width > 0 ? shown.traits->width : headerWidth, textWidth);
}

void ConditionTableColumns::sectionResized(int section, int width)
{
    const int least = minimumWidth(section);
    if (width < least)
        header().resizeSection(section, least); // which leads here again
    else if (!m_arranging)
        updateColumnInfo();
}

int ConditionTableColumns::columnFromTag(int tag) const
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    return column ? m_model.columnOf(column->identifier) : -1;
}

std::vector<int> ConditionTableColumns::inDisplayOrder() const
{
    std::vector<int> columns;
    for (int place = 0; place < header().count(); ++place)
        columns.push_back(header().logicalIndex(place));
    return columns;
}

void ConditionTableColumns::toggleColumnWithTag(int tag, bool autoSize)
{
    const ConditionColumnTraits *column = conditionColumnFromTag(tag);
    if (!column)
        return;
    const QScopedValueRollback arranging(m_arranging, true);
    if (const int shown = columnFromTag(tag); shown >= 0) {
        m_model.removeColumn(shown);
        return;
    }
    const int added = header().count();
    const int lastBefore = added > 0 ? header().logicalIndex(added - 1) : -1;
    m_model.appendColumn(recordColumn(*column));
    header().resizeSection(added, minimumWidth(added));
    if (autoSize && lastBefore >= 0)
        header().resizeSection(lastBefore, minimumWidth(lastBefore)); // it fills the table no longer
}

void ConditionTableColumns::updateColumnInfo()
{
    const std::shared_ptr<Tank> tank = m_tank.lock();
    if (!tank || !m_table)
        return;
    Condition::ColumnInfoArray columns;
    for (const int column : inDisplayOrder())
        columns.push_back({at(column).traits->identifier.toString(), double(header().sectionSize(column))});
    tank->condition()->setColumnInfoArray(columns);
}

} // namespace brinemark

#include "moc_ConditionTableColumns.cpp"
