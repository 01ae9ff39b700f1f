// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ModelObserver.h"
#include "ui/MainViewController.h"
#include "ui/OwnedWidget.h"
#include "ui/lists/ListMenu.h"
#include "ui/lists/RecordCells.h"
#include "ui/lists/RecordListPage.h"
#include "ui/lists/RecordTableColumns.h"
#include "ui/lists/RecordTableModel.h"
#include "ui/lists/RecordTableView.h"
#include "ui/lists/UndoDictionary.h"

#include <QPointer>

#include <optional>

namespace brinemark
{

class RecordSelectionModel;

/// Makes a new record of the class with its default values.
template <class R>
[[nodiscard]] std::shared_ptr<Record> makeNewRecord(Tank &tank)
{
    return std::make_shared<R>(&tank);
}

/// The differences between the record lists.
struct RecordListTraits {
    ContainerKind kind;
    TextKey itemKey;                                   ///< what the delete question calls the list
    TextKey emptySentenceKey;                          ///< what an empty list says
    std::shared_ptr<Record> (*makeRecord)(Tank &tank); ///< a new record with its default values
    bool deletingCountsAChange = true;
    std::span<const RecordColumn> columns; ///< all that the list can show, in their default order
    const char *layoutName = "";     ///< names the column layout in the preferences; unused with a store of its own
    const char *undoActionName = ""; ///< action name of an edit on the undo stack, a literal text
    bool undoCountsUp = false;       ///< whether undo and redo add a change to the document's count or take one off
    const char *menuName = "";       ///< object name of the context menu
    std::span<const ListMenuItem> menu = {}; ///< of the context menu and of the action button; empty for neither
};

/// The view of one journal of the current tank: title, table, buttons. Shows, sorts, edits, adds and deletes records.
/// RecordListPage.h documents the object names of its widgets.
///
/// An edit in the sort column, or a new record, does not sort the list at once: the re-sort is pending until the
/// selection starts to change. The record then moves to its place and stays selected.
class RecordListController : public MainViewController, protected ModelObserver, private RecordCells
{
    Q_OBJECT

public:
    ~RecordListController() override;

    QWidget *view() override;
    void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) override;
    [[nodiscard]] bool hasSelectedRow() const override;
    void deleteSelected() override;
    void newEntry() override;
    [[nodiscard]] std::vector<SortColumn> sortColumns() const override;
    [[nodiscard]] std::optional<SortOrder> sortOrder() const override;
    void sort(const SortOrder &order) override;
    void updateDisplay() override;
    void updateColumnInfo() override;

    [[nodiscard]] RecordTableView *table() const { return m_table; }            ///< null before view() was called
    [[nodiscard]] std::vector<std::shared_ptr<Record>> selectedRecords() const; ///< in the order of their rows

    /// Sorts the list and selects the record; without a record the selected records stay selected.
    void sortAndSelect(const std::shared_ptr<Record> &record = nullptr);

    /// Selects only this record and scrolls to it; false when the table does not show it.
    bool selectRecord(const Record &record);

    /// The row whose re-sort is pending, -1 for none.
    [[nodiscard]] int rowNeedsSort() const { return m_rowNeedsSort; }

    /// Opens the calendar at an editable date cell; the chosen date is stored like any other edit. False for other
    /// cells.
    bool displayCalendar(const QModelIndex &cell);

    /// What undoes an edit that is about to be made: the field's present value.
    [[nodiscard]] static UndoDictionary createUndoDictionaryWithData(const std::shared_ptr<Record> &record,
                                                                     const QString &key);
    /// Puts the value back, whichever tank is on screen, counts the change and returns the opposite dictionary.
    /// Returns nothing when the record is no longer in its tank's list.
    std::optional<UndoDictionary> undoWithDictionary(const UndoDictionary &dictionary);

protected:
    /// Without a `layout` store the column layout is kept in the preferences, under the traits' layout name.
    explicit RecordListController(const RecordListTraits &traits, std::unique_ptr<ColumnLayoutStore> layout = nullptr);

    virtual void viewMade() {}                 ///< the table and the row of buttons exist
    virtual void tankShown() {}                ///< the table shows the columns and rows of the current tank
    virtual void willDeleteRecord(Record &) {} ///< the user has confirmed; the record is still in its list

    /// Stores a value from a cell or from an undo step. Returns false to refuse it: no undo step is registered then.
    virtual bool storeValue(Record &record, const QString &key, const QVariant &value);
    /// A cell was edited, the change counted and its undo registered. `changed`: its text differs from the old one;
    /// false for dates.
    virtual void cellEdited(Record &, const RecordColumn &, bool /*changed*/) {}
    /// Starts editing a new record at its first cell that takes typing; the cell is invalid when none does.
    virtual void startNewRecord(const QModelIndex &cell);

    [[nodiscard]] QString cellText(const Record &record, int column) const override;
    [[nodiscard]] CellMark cellMark(const Record &record, int column) const override;
    [[nodiscard]] QString cellToolTip(const Record &record, int column) const override;

    [[nodiscard]] RecordTableModel &model() const { return *m_model; }
    [[nodiscard]] RecordTableColumns &columns() const { return *m_columns; }
    [[nodiscard]] static Tank *currentTank();

    void journalRecordInserted(Tank &tank, ContainerKind kind) override;
    void journalRecordRemoved(Tank &tank, ContainerKind kind) override;

private:
    void makeView();
    void makeMenus();
    void watchModel();
    void showTank(Tank *tank);
    void showTitle(const Tank *tank);
    void showSortIndicator();
    void showEmptyState();
    void headerClicked(int section);
    void selectionDidChange();
    bool editCell(int row, int column, const QVariant &value) override;
    void setRowNeedsSort(int row);
    bool sortPendingRow();
    void deleteRecords(const std::vector<std::shared_ptr<Record>> &records);

    RecordListTraits m_traits;
    RecordTableModel *m_model;
    RecordTableView *m_table = nullptr;
    RecordSelectionModel *m_selection = nullptr;
    qint32 m_rowNeedsSort = -1;
    OwnedWidget<RecordListPage> m_page;
    std::unique_ptr<RecordTableColumns> m_columns; ///< stores a waiting layout at its end, while there is a table
};

} // namespace brinemark
