#pragma once

#include "model/ModelObserver.h"
#include "ui/MainViewController.h"
#include "ui/RecordTableModel.h"

#include <QPointer>

class QHBoxLayout;
class QStackedWidget;
class QTableView;
class QToolButton;

namespace brinemark
{

class EmptyState;
class TitleLine;

/// Makes a new record of the class with its default values.
template <class R>
[[nodiscard]] std::shared_ptr<Record> makeNewRecord(Tank &tank)
{
    return std::make_shared<R>(&tank);
}

/// What the journal tables differ in.
struct RecordListTraits {
    ContainerKind kind;
    TextKey itemKey;                                   ///< what the delete question calls the list
    TextKey emptySentenceKey;                          ///< what an empty list says
    std::shared_ptr<Record> (*makeRecord)(Tank &tank); ///< a new record with its default values
    bool deletingCountsAChange = true;
    std::span<const RecordColumn> columns = {}; ///< empty where they depend on the tank (see `columnsFor`)
};

/// The view of one journal of the current tank: title, table, buttons. Shows, sorts, adds and deletes records.
///
/// Object names: the view "NAMEView" and the table "NAMEList" with the container's list name ("noteList" ...), the
/// buttons "newButton" and "deleteButton", the empty state's button "emptyStateButton".
class RecordListController : public MainViewController, protected ModelObserver
{
    Q_OBJECT

public:
    ~RecordListController() override;

    QWidget *view() override;
    void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) override;
    [[nodiscard]] bool hasSelectedRow() const override;
    void deleteSelected() override;
    void newEntry() override;
    void updateDisplay() override;

    [[nodiscard]] QTableView *table() const { return m_table; }                 ///< null before the view was asked for
    [[nodiscard]] std::vector<std::shared_ptr<Record>> selectedRecords() const; ///< in the order of their rows

    /// Re-sorts the list and selects the record, or keeps selected what is.
    void sortAndSelect(const std::shared_ptr<Record> &record = nullptr);

    /// Selects exactly this record and brings it into sight; false when the table does not show it.
    bool selectRecord(const Record &record);

protected:
    explicit RecordListController(const RecordListTraits &traits);

    /// The columns for a tank (null for none), in their order: those of the traits.
    [[nodiscard]] virtual std::span<const RecordColumn> columnsFor(Tank *) { return m_traits.columns; }
    virtual void viewMade() {}                 ///< the table and the row of buttons can be added to
    virtual void tankShown(Tank *) {}          ///< columns and rows are those of the tank
    virtual void willDeleteRecord(Record &) {} ///< the deletion is decided; the record is still in its list

    [[nodiscard]] RecordTableModel &model() const { return *m_model; }
    [[nodiscard]] QHBoxLayout *buttonRow() const { return m_buttonRow; }
    [[nodiscard]] static Tank *currentTank();
    [[nodiscard]] int ownWidth(const RecordColumn &column) const; ///< pixels that the header and a date need

    void journalRecordInserted(Tank &tank, ContainerKind kind) override;
    void journalRecordRemoved(Tank &tank, ContainerKind kind) override;

private:
    void makeView();
    void showTank(Tank *tank);
    void showTitle(const Tank *tank);
    void showSortIndicator();
    void headerClicked(int section);
    void deleteRecords(const std::vector<std::shared_ptr<Record>> &records);
    void selectionDidChange();
    void showEmptyState();

    RecordListTraits m_traits;
    RecordTableModel *m_model;
    QPointer<QWidget> m_view;
    TitleLine *m_titleLine = nullptr;
    QStackedWidget *m_pages = nullptr;
    QTableView *m_table = nullptr;
    EmptyState *m_emptyState = nullptr;
    QHBoxLayout *m_buttonRow = nullptr;
    QToolButton *m_newButton = nullptr;
    QToolButton *m_deleteButton = nullptr;
};

} // namespace brinemark
