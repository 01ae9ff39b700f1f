// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/views/ConditionTableColumns.h"
#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

class ConditionColumnWindow;
struct TankData;

/// The water tests of the current tank. Which columns it shows, in which order and how wide, belongs to the tank.
class ConditionListController : public RecordListController, public Shared<ConditionListController>
{
    Q_OBJECT

public:
    ~ConditionListController() override;

    /// Stores the columns as they are on screen into the tank that is on screen. Counts no change.
    void updateColumnInfo();

    /// Opens the small window ("customColumnWindow") with a check box for every column ("column.ph" ...), which are
    /// applied at once.
    void showCustomizeConditionColumns();

    /// Shows a column that is hidden at the right, hides one that is shown, and stores the layout. A tag that is no
    /// column does nothing.
    void toogleConditionColumn(int tag);
    [[nodiscard]] bool isColumnVisible(int tag) const;
    /// The table's column of a tag, -1 when it is not shown.
    [[nodiscard]] int columnFromTag(int tag) const { return m_columns.columnFromTag(tag); }

    /// Shows a sheet when the value of the parameter lies outside its target in the current tank.
    void warningCheckIdentifier(QStringView identifier, double value);

    void graphButtonAction(); ///< stores the layout and opens the graph
    void exportAction();      ///< asks where to, then writes the shown columns as comma-separated values

    /// "Graph" and "Export" (tag 100) take two rows.
    [[nodiscard]] bool validateMenuItem(int tag) const override;

protected:
    [[nodiscard]] std::span<const RecordColumn> columnsFor(Tank *tank) override;
    void viewMade() override;
    void tankShown(Tank *tank) override;
    void cellEdited(Record &record, const RecordColumn &column, bool changed) override;
    void startNewRecord(const QModelIndex &cell) override;
    [[nodiscard]] QString cellText(const Record &record, int column) const override;
    [[nodiscard]] CellMark cellMark(const Record &record, int column) const override;
    [[nodiscard]] QString cellToolTip(const Record &record, int column) const override;

private:
    friend class Shared<ConditionListController>;
    ConditionListController();

    [[nodiscard]] static const TankData *targetOf(const Record &record, const ConditionTableColumns::Column &column);
    void closeWarningSheet();
    void showColumnChecks();

    ConditionTableColumns m_columns;
    QPointer<ConditionColumnWindow> m_columnWindow;
};

} // namespace brinemark
