// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/lists/ColumnLayoutStore.h"

#include <QObject>
#include <QPointer>
#include <QTableView>
#include <QTimer>

#include <memory>
#include <span>
#include <vector>

class QHeaderView;

namespace brinemark
{

class RecordTableModel;
class Tank;

/// The columns of a record table: which ones are shown, in which order and how wide. The saved layout of the tank on
/// screen makes them. A column that is moved, resized, shown or hidden by the user changes the layout, which is stored
/// a moment later, and at once before the table shows another tank.
class RecordTableColumns : public QObject
{
    Q_OBJECT

public:
    /// `all` are the columns that the list can show; the span's memory has to outlive this object, like the model.
    RecordTableColumns(std::span<const RecordColumn> all, std::unique_ptr<ColumnLayoutStore> store,
                       RecordTableModel &model);
    ~RecordTableColumns() override; ///< stores a layout that waits to be stored

    void setTable(QTableView &table); ///< before any of the following

    /// Shows a tank's records, or none (null), under the columns of its layout.
    void showTank(Tank *tank);

    /// Hides a column, or shows it at the right; the column that was last before then gets its smallest width, since it
    /// no longer has to fill the table. An identifier that names no column of the list does nothing.
    void toggleColumn(QStringView identifier);

    [[nodiscard]] std::vector<int> inDisplayOrder() const; ///< the model's columns from left to right

    void storeLayout();        ///< at once, as it is on screen
    void storePendingLayout(); ///< at once, if a change waits to be stored

Q_SIGNALS:
    void layoutChanged(); ///< by the user

private:
    [[nodiscard]] QHeaderView &header() const;
    [[nodiscard]] const RecordColumn *columnOf(QStringView identifier) const;
    [[nodiscard]] int leastWidth(const RecordColumn &column) const;
    [[nodiscard]] int openingWidth(const RecordColumn &column) const;
    void arrange(const ColumnInfoArray &layout);
    void sectionResized(int section, int width);

    std::span<const RecordColumn> m_all;
    std::unique_ptr<ColumnLayoutStore> m_store;
    RecordTableModel &m_model;
    QPointer<QTableView> m_table;
    QTimer m_storeLater;
    bool m_showsTank = false; ///< without a tank there are no columns, which is no layout
    bool m_arranging = false; ///< the program changes the columns, not the user
};

} // namespace brinemark
