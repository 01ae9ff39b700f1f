// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/SFCheckedFormatter.h"
#include "model/Parameters.h"
#include "ui/Shared.h"
#include "ui/lists/RecordListController.h"

namespace brinemark
{

class ConditionColumnWindow;
struct ConditionColumnTraits;
struct TankData;

/// The water tests of the current tank. Which columns it shows, in which order and how wide, belongs to the tank.
class ConditionListController : public RecordListController, public Shared<ConditionListController>
{
    Q_OBJECT

public:
    ~ConditionListController() override;

    /// Stores the columns as they are on screen into the tank that is on screen. Counts no change.
    void updateColumnInfo() override;

    /// Opens the small window ("customColumnWindow") with a check box for every column ("column.ph" ...), which show
    /// and hide their columns at once.
    void showCustomizeConditionColumns();

    /// Shows a hidden column at the right, or hides a shown one, and counts a change. A tag that names
    /// no column does nothing.
    void toogleConditionColumn(int tag);
    [[nodiscard]] bool isColumnVisible(int tag) const;
    /// The table's column of a tag, -1 when it is not shown.
    [[nodiscard]] int columnFromTag(int tag) const;

    /// Shows a sheet when the value of the parameter lies outside its target in the current tank.
    void warningCheckIdentifier(QStringView identifier, double value);

    void graphButtonAction(); ///< stores the layout and opens the graph
    void exportAction();      ///< asks where to, then writes the shown columns as comma-separated values

protected:
    void viewMade() override;
    void tankShown() override { showColumnChecks(); }
    void cellEdited(Record &record, const RecordColumn &column, bool changed) override;
    void startNewRecord(const QModelIndex &cell) override;
    [[nodiscard]] QString cellText(const Record &record, int column) const override;
    [[nodiscard]] CellMark cellMark(const Record &record, int column) const override;
    [[nodiscard]] QString cellToolTip(const Record &record, int column) const override;

private:
    friend class Shared<ConditionListController>;
    ConditionListController();

    /// What the cells need of a column, worked out once.
    struct Column {
        const ConditionColumnTraits *traits;
        std::optional<Parameter> parameter; ///< none for the date
        SFCheckedFormatter formatter;
    };
    [[nodiscard]] const Column &columnAt(int place) const; ///< as the model counts them
    [[nodiscard]] static const TankData *targetOf(const Record &record, const Column &column);
    void closeWarningSheet();
    void showColumnChecks();

    std::vector<Column> m_all; ///< in the order of the table of columns
    OwnedWidget<ConditionColumnWindow> m_columnWindow;
};

} // namespace brinemark
