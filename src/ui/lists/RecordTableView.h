// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

#include <functional>

namespace brinemark
{

class RecordSelectionModel;

/// The look and the keys of the program's record tables: whole rows are selected, the delete key asks to delete them,
/// Return makes a new one, and the cells of a row are typed one after the other with the tab key.
class RecordTableView : public QTableView
{
    Q_OBJECT

public:
    explicit RecordTableView(std::function<void()> deletePressed = {}, QWidget *parent = nullptr);

    std::function<void()> returnPressed = {};
    /// A cell was clicked, or F2 or the space bar pressed on it; true when it opens something of its own.
    std::function<bool(const QModelIndex &cell)> openCell = {};
    /// The context menu is asked for at a point of the screen, by mouse or by key.
    std::function<void(const QPoint &place)> menuAsked = {};

    /// The first cell of a row, in the order on screen, that takes typing; invalid when none does.
    [[nodiscard]] QModelIndex firstTypableCell(int row) const;

    /// Makes the cell current and starts editing it, as soon as editing is not held.
    void editCell(const QModelIndex &cell);
    void finishEditing(); ///< commits what is being typed, if anything

    /// While a sheet is up nothing can be typed: editing starts when it is released again.
    void holdEditing();
    void releaseEditing();

protected:
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fitRowHeight();
    [[nodiscard]] QModelIndex typableCellBeside(const QModelIndex &row, int visualColumn, int step) const;
    [[nodiscard]] RecordSelectionModel *recordSelection() const;

    std::function<void()> m_deletePressed;
    QPersistentModelIndex m_toEdit; ///< once editing is released
    bool m_held = false;
    bool m_committing = false;
};

} // namespace brinemark
