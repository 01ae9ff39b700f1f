// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>
#include <QWidget>

namespace brinemark
{

/// A month's page: the weekdays in the locale's order above six weeks of days. The page may show another month than
/// that of the chosen day. A click chooses a day; keys move it (see ui/calendar/CalendarMonth.h).
class CalendarDays : public QWidget
{
    Q_OBJECT

public:
    /// Shows the page of `day`. With `isChosen` false, the day is only where the keys begin.
    CalendarDays(QDate day, bool isChosen, QDate today, QWidget *parent = nullptr);

    [[nodiscard]] QDate day() const { return m_day; }
    [[nodiscard]] bool isChosen() const { return m_isChosen; }
    [[nodiscard]] QDate shownMonth() const { return m_month; } ///< the first of the month

    /// Chooses a day and shows its page.
    void choose(QDate day);
    /// Shows the page so many months further; the chosen day stays. Does nothing at the ends of the range.
    void turnPage(int months);

    /// The rectangle of a day; empty when the day is not on the page.
    [[nodiscard]] QRect rectOf(QDate day) const;
    /// The day at a point; null where there is none.
    [[nodiscard]] QDate dayAt(QPoint point) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void pageTurned();
    void dayClicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    [[nodiscard]] QSize cellSize() const;
    [[nodiscard]] QRect cellAt(int row, int column) const; ///< row 0 holds the weekdays
    [[nodiscard]] QDate dayOfCell(int row, int column) const;
    void showMonth(QDate month);
    void setHovered(QDate day);
    void describe();
    void paintDay(QPainter &painter, const QRect &cell, QDate day) const;

    QDate m_day;
    bool m_isChosen;
    QDate m_today;
    QDate m_month;
    QDate m_hovered;
    QDate m_pressed;
    Qt::DayOfWeek m_firstDayOfWeek;
};

} // namespace brinemark
