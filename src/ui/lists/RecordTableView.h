// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

#include <functional>

namespace brinemark
{

class RecordSelectionModel;

/// The look and the keys of the record tables. Whole rows are selected, the delete key asks to delete them, Return
/// makes a new record, and Tab moves the typing to the next cell of the row.
class RecordTableView : public QTableView
{
    Q_OBJECT

public:
    explicit RecordTableView(std::function<void()> deletePressed = {}, QWidget *parent = nullptr);

    std::function<void()> returnPressed = {};
    /// Called when a cell is clicked, or F2 or the space bar pressed on it. Returns true when the cell opens a chooser.
    std::function<bool(const QModelIndex &cell)> openCell = {};
    /// Called with a point of the screen when the context menu is requested by mouse or key.
    std::function<void(const QPoint &place)> menuAsked = {};

    /// The first cell of a row, in the order on screen, that takes typing; invalid when none does.
    [[nodiscard]] QModelIndex firstTypableCell(int row) const;

    /// Makes the cell current and starts editing it, or does so in releaseEditing() while editing is held.
    void editCell(const QModelIndex &cell);
    void finishEditing(); ///< commits what is being typed, if anything

    /// For the time of a sheet: no editor opens between these two calls. Sheets can follow each other: an editor opens
    /// when the last of them has been released, in an active window.
    void holdEditing();
    void releaseEditing();
    [[nodiscard]] bool isEditingHeld() const { return m_holds > 0; }

protected:
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fitRowHeight();
    [[nodiscard]] bool dropsKey(const QKeyEvent &event);
    [[nodiscard]] QModelIndex typableCellBeside(const QModelIndex &row, int visualColumn, int step) const;
    [[nodiscard]] RecordSelectionModel *recordSelection() const;

    std::function<void()> m_deletePressed;
    QPersistentModelIndex m_toEdit; ///< the cell to edit when editing is released
    int m_holds = 0;
    /// The last press ended a pending re-sort. All that belongs to it is dropped: its second press, its menu, and what
    /// is typed before a cell is chosen anew.
    bool m_pressDropped = false;
    bool m_committing = false;
};

} // namespace brinemark
