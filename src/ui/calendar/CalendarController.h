// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QAbstractItemModel>
#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QTableView>

#include <functional>
#include <memory>

namespace brinemark
{

class CalendarPopup;

/// The month calendar that pops up at the date cells of tables. There is only one: opening it at another cell closes it
/// at the first, as a click outside does.
///
/// Clicking a day chooses it, keeps the time of day and closes the calendar. Keys move the day as
/// ui/calendar/CalendarMonth.h says; Return takes the date, Escape discards it, and Tab moves between the days and the
/// time. A click outside takes a changed date, except on the table's header, which discards it.
class CalendarController : public QObject, public Shared<CalendarController>
{
    Q_OBJECT
    friend class Shared<CalendarController>;

public:
    ~CalendarController() override;

    /// Opens the calendar at `date`, below a cell or, without room there, above it, always within the screen.
    ///
    /// `target` receives the chosen date once, after the calendar has closed, and only when it differs from `date`. The
    /// chosen date has the time spec of `date`: days and times are shown and chosen in its own zone or at its own
    /// offset, and an offset is the same on every day. When `date` is invalid or outside the years 1 to 9999, the
    /// calendar begins at the clock's current local time with no day chosen; Return then takes the day shown.
    ///
    /// `cell` is in the coordinates of the table's viewport. When the table is destroyed or hidden, or its rows change
    /// while the calendar is open, the calendar closes without calling the target, since the cell may belong to another
    /// record by then.
    void setCalendar(std::function<void(const QDateTime &chosen)> target, QTableView *table,
                     const QString &columnIdentifier, const QRect &cell, const QDateTime &date);

    /// Closes the calendar if it is open. With `save`, the target receives a changed date. With `fade`, a picture of
    /// the calendar fades out; the calendar itself is hidden at once.
    void closeAndSave(bool save, bool fade);

    [[nodiscard]] bool isOpen() const;
    /// The column and table of the open calendar; empty and null when it is closed.
    [[nodiscard]] QString columnIdentifier() const { return m_columnIdentifier; }
    [[nodiscard]] QTableView *table() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    CalendarController();

    void watchTable();
    void leave(QPoint globalPoint);

    OwnedWidget<CalendarPopup> m_popup; ///< a child of the table
    /// A QWidget, because a table that is being destroyed cannot be cast to QTableView.
    QPointer<QWidget> m_table;
    QPointer<QAbstractItemModel> m_model;
    std::function<void(const QDateTime &)> m_target;
    QString m_columnIdentifier;
    QRect m_cell;
    std::unique_ptr<QObject> m_watch; ///< holds the connections of one opening; destroyed before the pop-up
};

namespace calendar
{

/// The position of a pop-up of `size` at a cell, in screen coordinates: below it, or above it when there is more room,
/// aligned with the cell's leading edge, and within `screen`.
[[nodiscard]] QRect placeAt(const QRect &cell, QSize size, const QRect &screen, Qt::LayoutDirection direction);

} // namespace calendar

} // namespace brinemark
