// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

class QWidget;

namespace brinemark
{

/// A column by which a list can be sorted.
struct SortColumn {
    QString identifier;
    QString title; ///< its header
};

/// How a list is sorted: by which column and in which direction.
struct SortOrder {
    QString identifier;
    bool ascending = true;
    bool operator==(const SortOrder &) const = default;
};

/// A controller whose view fills the right side of the main window.
class MainViewController : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QWidget *view() = 0; ///< created on first use

    /// Called each time the view is shown: shows the current tank (or the selected item) and links the tab order from
    /// the tree through the view's controls to the help button and back to the tree.
    virtual void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) = 0;

    /// Whether the view's list has a selected row, which the delete command would act on.
    [[nodiscard]] virtual bool hasSelectedRow() const { return false; }
    virtual void deleteSelected() {} ///< asks, then deletes the selected rows
    virtual void newEntry() {}       ///< appends a new record and starts editing it
    /// The columns by which the view's list can be sorted, hidden ones included; empty for views without a list.
    [[nodiscard]] virtual std::vector<SortColumn> sortColumns() const { return {}; }
    /// None for views without a list, and without a tank.
    [[nodiscard]] virtual std::optional<SortOrder> sortOrder() const { return {}; }
    virtual void sort(const SortOrder &) {} ///< another order than the present one counts a change
    virtual void updateDisplay() {}         ///< reads the records again
    virtual void updateColumnInfo() {}      ///< stores what the user has changed in the layout of the list's columns

Q_SIGNALS:
    void selectionChanged(); ///< emitted when delete and menu commands may have to be enabled or disabled
};

} // namespace brinemark
