// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordTableColumns.h"

#include "base/text/AmountText.h"
#include "base/text/DateText.h"
#include "base/text/Texts.h"
#include "model/Container.h"
#include "ui/lists/RecordTableModel.h"

#include <QHeaderView>
#include <QLocale>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

constexpr std::chrono::milliseconds pause{200}; ///< without a change, after which a changed layout is stored

/// A value that every column of a kind has to show in full: below its width a column is of no use.
QString usualText(const RecordColumn &column)
{
    constexpr double usualNumber = 88.888;
    constexpr double usualAmount = 8888.88;
    switch (column.kind) {
    case ColumnKind::Date:
        return localeDateText(QDate(2000, 12, 28).startOfDay());
    case ColumnKind::Amount:
        return formatObjectForLocale(usualAmount);
    case ColumnKind::Number:
        return QLocale().toString(usualNumber, 'f', column.decimals);
    case ColumnKind::Text:
    case ColumnKind::Flag:
        break;
    }
    return {};
}

} // namespace

RecordTableColumns::RecordTableColumns(std::span<const RecordColumn> all, std::unique_ptr<ColumnLayoutStore> store,
                                       RecordTableModel &model)
    : m_all(all)
    , m_store(std::move(store))
    , m_model(model)
{
    m_storeLater.setSingleShot(true);
    m_storeLater.setInterval(pause);
    connect(&m_storeLater, &QTimer::timeout, this, &RecordTableColumns::storeLayout);
    connect(this, &RecordTableColumns::layoutChanged, &m_storeLater, qOverload<>(&QTimer::start));
}

RecordTableColumns::~RecordTableColumns()
{
    storePendingLayout();
}

void RecordTableColumns::setTable(QTableView &table)
{
    m_table = &table;
    header().setSectionsMovable(true);
    connect(&header(), &QHeaderView::sectionMoved, this, [this] {
        if (!m_arranging)
            Q_EMIT layoutChanged();
    });
    connect(&header(), &QHeaderView::sectionResized, this,
            [this](int section, int, int width) { sectionResized(section, width); });
}

QHeaderView &RecordTableColumns::header() const
{
    return *m_table->horizontalHeader();
}

const RecordColumn *RecordTableColumns::columnOf(QStringView identifier) const
{
    const auto it = std::find_if(m_all.begin(), m_all.end(),
                                 [&](const RecordColumn &column) { return column.identifier == identifier; });
    return it == m_all.end() ? nullptr : &*it;
}

// ---- widths

int RecordTableColumns::leastWidth(const RecordColumn &column) const
{
    constexpr int roomBesideHeader = 17; // margins and the sort indicator
    constexpr int roomBesideText = 16;
    const int headerWidth = column.leastWidth > 0
                                ? column.leastWidth
                                : header().fontMetrics().horizontalAdvance(text(column.header)) + roomBesideHeader;
    const QFontMetrics font = m_table->fontMetrics();
    const QString absent = column.absentText.isEmpty() ? QString() : text(column.absentText);
    const int textWidth = std::max(font.horizontalAdvance(usualText(column)), font.horizontalAdvance(absent));
    return std::max(headerWidth, textWidth + roomBesideText);
}

int RecordTableColumns::openingWidth(const RecordColumn &column) const
{
    return std::max(column.width, leastWidth(column));
}

void RecordTableColumns::sectionResized(int section, int width)
{
    const int least = leastWidth(m_model.columns()[std::size_t(section)]);
    if (width < least) {
        header().resizeSection(section, least); // emits sectionResized again
        return;
    }
    // The last column fills the table: it changes with the window, not by the user.
    const bool fillsTable = header().stretchLastSection() && header().visualIndex(section) == header().count() - 1;
    if (!m_arranging && !fillsTable)
        Q_EMIT layoutChanged();
}

// ---- the layout

void RecordTableColumns::showTank(Tank *tank)
{
    storePendingLayout();
    const QScopedValueRollback arranging(m_arranging, true);
    const ColumnInfoArray layout = tank ? m_store->read(*tank) : ColumnInfoArray();
    std::vector<RecordColumn> columns;
    for (const ColumnInfo &info : layout) {
        if (const RecordColumn *column = columnOf(info.identifier))
            columns.push_back(*column);
    }
    m_model.setTank(tank, columns);
    m_showsTank = tank != nullptr;
    arrange(layout);
}

void RecordTableColumns::arrange(const ColumnInfoArray &layout)
{
    for (int i = 0; i < header().count(); ++i)
        header().moveSection(header().visualIndex(i), i);
    for (const ColumnInfo &info : layout) {
        const int section = m_model.columnOf(info.identifier);
        if (section < 0)
            continue;
        const RecordColumn &column = m_model.columns()[std::size_t(section)];
        const double wanted = info.width > 0 ? std::ceil(info.width) : openingWidth(column);
        header().resizeSection(section,
                               int(std::clamp<double>(wanted, leastWidth(column), header().maximumSectionSize())));
    }
}

void RecordTableColumns::toggleColumn(QStringView identifier)
{
    const RecordColumn *column = columnOf(identifier);
    if (!column)
        return;
    {
        const QScopedValueRollback arranging(m_arranging, true);
        if (const int shown = m_model.columnOf(identifier); shown >= 0) {
            m_model.removeColumn(shown);
        } else {
            const int added = header().count();
            const int lastBefore = added > 0 ? header().logicalIndex(added - 1) : -1;
            m_model.appendColumn(*column);
            header().resizeSection(added, openingWidth(*column));
            if (lastBefore >= 0)
                header().resizeSection(lastBefore, leastWidth(m_model.columns()[std::size_t(lastBefore)]));
        }
    }
    Q_EMIT layoutChanged();
}

std::vector<int> RecordTableColumns::inDisplayOrder() const
{
    std::vector<int> columns;
    for (int place = 0; place < header().count(); ++place)
        columns.push_back(header().logicalIndex(place));
    return columns;
}

void RecordTableColumns::storeLayout()
{
    m_storeLater.stop();
    if (!m_table || !m_showsTank)
        return;
    ColumnInfoArray layout;
    for (const int column : inDisplayOrder()) {
        layout.push_back(
            {m_model.columns()[std::size_t(column)].identifier.toString(), double(header().sectionSize(column))});
    }
    const Container *list = m_model.container();
    m_store->write(list ? list->tank() : nullptr, layout);
}

void RecordTableColumns::storePendingLayout()
{
    if (m_storeLater.isActive())
        storeLayout();
}

} // namespace brinemark

#include "moc_RecordTableColumns.cpp"
