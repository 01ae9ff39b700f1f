#pragma once

#include "ui/RecordListController.h"
#include "ui/Shared.h"

namespace brinemark
{

class ConditionColumnWindow;

/// The water tests of the current tank. Which columns it shows, in which order and how wide, belongs to the tank.
class ConditionListController : public RecordListController, public Shared<ConditionListController>
{
    Q_OBJECT

public:
    ~ConditionListController() override;

    /// Stores the columns as they are on screen into the tank that is on screen.
    void updateColumnInfo();

    /// Opens the small window ("customColumnWindow") with a check box for every column ("column.ph" ...), which are
    /// applied at once.
    void showCustomizeConditionColumns();

    /// Shows a column that is hidden at the right, hides one that is shown. A tag that is no column does nothing.
    void toogleConditionColumn(int tag);
    [[nodiscard]] bool isColumnVisible(int tag) const;

protected:
    [[nodiscard]] std::span<const RecordColumn> columnsFor(Tank *tank) override;
    void viewMade() override;
    void tankShown(Tank *tank) override;

private:
    friend class Shared<ConditionListController>;
    ConditionListController();

    void arrangeColumns();
    void showColumnChecks();

    std::vector<RecordColumn> m_shownColumns;
    std::weak_ptr<Tank> m_shownTank;
    QPointer<ConditionColumnWindow> m_columnWindow;
    bool m_arranging = false; ///< the columns change by the program, not by the user
};

} // namespace brinemark
