// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

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

/// The month calendar that pops up at the date cells of tables. There is one; opening it at another cell closes it at
/// the first as a click outside does.
///
/// A day's click takes the day, with the time of day as it is, and closes; the keys are those of
/// ui/calendar/CalendarMonth.h, with Return to take the date, Escape to leave it, and Tab between the days and the
/// time. A click outside takes what was changed, except in the table's header, which takes nothing.
class CalendarController : public QObject, public Shared<CalendarController>
{
    Q_OBJECT
    friend class Shared<CalendarController>;

public:
    ~CalendarController() override;

    /// Opens the calendar below a cell (above it where there is no room, always on the screen), at `date`.
    ///
    /// `target` gets the chosen date once, after the calendar has closed, and only when it differs from `date`; it is
    /// not called when the person leaves the date as it was. The chosen date is of the same time spec as `date`: the
    /// day and time shown and chosen are those at the value's own offset or in its own zone, and an offset stays
    /// whatever the day. An invalid `date`, or one outside the years 1 to 9999, begins at the clock's now, in local
    /// time, with nothing chosen; Return then takes that day.
    ///
    /// `cell` is in the coordinates of the table's viewport. When the table goes or is hidden, or its rows change while
    /// the calendar is open, it closes and the target is not called: its cell may be another record's by then.
    void setCalendar(std::function<void(const QDateTime &chosen)> target, QTableView *table,
                     const QString &columnIdentifier, const QRect &cell, const QDateTime &date);

    /// Closes the calendar; saving calls the target with what was changed, if anything was. Fading is a short one, and
    /// the calendar is out of the way from its first moment. Nothing happens when none is open.
    void closeAndSave(bool save, bool fade);

    [[nodiscard]] bool isOpen() const;
    /// The column and table that the calendar is open at; empty and null when it is not.
    [[nodiscard]] QString columnIdentifier() const { return m_columnIdentifier; }
    [[nodiscard]] QTableView *table() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    CalendarController();

    void watchTable();
    void leave(QPoint globalPoint);

    QPointer<CalendarPopup> m_popup; ///< belongs to the table
    QPointer<QWidget> m_table;       ///< a widget, because a table that is being destroyed is no table any more
    QPointer<QAbstractItemModel> m_model;
    std::unique_ptr<QObject> m_watch; ///< holds the connections of one opening
    std::function<void(const QDateTime &)> m_target;
    QString m_columnIdentifier;
    QRect m_cell;
};

namespace calendar
{

/// Where a pop-up of `size` stands at a cell of the screen: below it, above it when there is more room there, at the
/// side where lines begin, and within `screen`.
[[nodiscard]] QRect placeAt(const QRect &cell, QSize size, const QRect &screen, Qt::LayoutDirection direction);

} // namespace calendar

} // namespace brinemark
