// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ContainerKind.h"

#include <QWidget>

class QHBoxLayout;
class QMenu;
class QStackedWidget;
class QToolButton;

namespace brinemark
{

class EmptyState;
class RecordTableView;
class TitleLine;
struct TextKey;

/// The widgets of a list's view: title line, table or empty state, and the row of buttons below. Knows nothing of
/// records.
///
/// Object names: the page "NAMEView" and the table "NAMEList" with the container's list name ("noteList" ...), the
/// buttons "newButton", "deleteButton" and "actionButton", the empty state's button "emptyStateButton".
class RecordListPage : public QWidget
{
    Q_OBJECT

public:
    RecordListPage(ContainerKind kind, TextKey emptySentence);

    [[nodiscard]] RecordTableView *table() const { return m_table; }
    [[nodiscard]] QToolButton *deleteButton() const { return m_deleteButton; }

    void setTitle(const QString &title, const QString &tankName);
    void showEmptyState(bool empty);
    void addActionMenu(QMenu *menu); ///< adds the action button, which opens this menu
    /// Links the tab order from the tree through the table and the buttons to the help button.
    void linkKeyViews(QWidget *tankTree, QWidget *helpButton);

protected:
    void keyPressEvent(QKeyEvent *event) override; ///< Return asks for a new entry from every widget of the page

Q_SIGNALS:
    void newRequested();
    void deleteRequested();

private:
    TitleLine *m_titleLine;
    RecordTableView *m_table;
    EmptyState *m_emptyState;
    QStackedWidget *m_pages;
    QHBoxLayout *m_buttonRow;
    QToolButton *m_newButton;
    QToolButton *m_deleteButton;
    QToolButton *m_actionButton = nullptr;
};

} // namespace brinemark
