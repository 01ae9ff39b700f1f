// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/RecordingShell.h"
#include "ui/lists/RecordListController.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

namespace brinemark::test
{

/// Shows a list's view in the shell's window, for the current tank, as the main window does.
inline void present(RecordListController &controller, RecordingShell &shell)
{
    QWidget *view = controller.view();
    view->setParent(&shell.window);
    view->resize(shell.window.size());
    shell.window.show();
    view->show();
    controller.setKeyViewWithTankList(&shell.window, &shell.window);
}

inline void clickHeader(const QTableView *table, int section)
{
    QHeaderView *header = table->horizontalHeader();
    const QPoint middle(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                        header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, middle);
}

inline void clickCell(const QTableView *table, int row, int column, Qt::KeyboardModifiers modifiers = {})
{
    const QPoint middle = table->visualRect(table->model()->index(row, column)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, middle);
}

/// The shown texts of a column, from the first row to the last.
inline QStringList column(const QTableView *table, int section)
{
    QStringList texts;
    for (int row = 0; row < table->model()->rowCount(); ++row)
        texts.append(table->model()->index(row, section).data().toString());
    return texts;
}

inline QList<int> selectedRows(const QTableView *table)
{
    QList<int> rows;
    for (const QModelIndex &index : table->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// Types into the widget that has the focus.
inline void type(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

} // namespace brinemark::test
