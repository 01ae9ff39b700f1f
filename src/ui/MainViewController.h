// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

class QWidget;

namespace brinemark
{

/// A controller whose view fills the right side of the main window.
class MainViewController : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QWidget *view() = 0; ///< made when it is first asked for

    /// Called each time the view is shown: takes up the current tank (or the selected item) and links the tab order
    /// from the tree through the view's own controls to the help button and back.
    virtual void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) = 0;

    /// Whether the view's list has a selected row, which the delete command would act on.
    [[nodiscard]] virtual bool hasSelectedRow() const { return false; }
    virtual void deleteSelected() {}   ///< asks, then deletes the selected rows
    virtual void newEntry() {}         ///< appends a new record and starts editing it
    virtual void updateDisplay() {}    ///< shows the records afresh
    virtual void updateColumnInfo() {} ///< stores what the user has changed in the layout of the list's columns

Q_SIGNALS:
    void selectionChanged(); ///< what the delete and menu commands may do has changed
};

} // namespace brinemark
