// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QFrame>

class QLabel;
class QTimeEdit;
class QToolButton;

namespace brinemark
{

class CalendarDays;

/// The calendar's window: a month's page with its buttons, and the time of day. It edits its own copy of the date and
/// signals when the user is done; CalendarController decides what to do with the result.
class CalendarPopup : public QFrame
{
    Q_OBJECT

public:
    /// Begins at `date`, or at the current time with nothing chosen when `date` is invalid or out of range.
    CalendarPopup(const QDateTime &date, QWidget *parent);

    /// The current date, with the time spec (zone or offset) of the initial date. The seconds are kept while hour and
    /// minute are unchanged.
    [[nodiscard]] QDateTime date() const;
    /// Whether date() differs from the initial date, or a day was chosen where there was none.
    [[nodiscard]] bool isChanged() const;

Q_SIGNALS:
    void finished(bool save);
    /// The mouse was pressed outside the window.
    void left(QPoint globalPoint);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QToolButton *addPageButton(const char *iconName, const QString &title, const char *objectName, int months);
    QLayout *makeTitleRow();
    QLayout *makeTimeRow();
    void showTitle();
    [[nodiscard]] QTime chosenTime() const;

    const bool m_hasStart;
    const QDateTime m_start;
    CalendarDays *m_days;
    QLabel *m_title = nullptr;
    QTimeEdit *m_time = nullptr;
    QList<std::pair<QToolButton *, int>> m_pageButtons; ///< with the number of months that each turns
    int m_wheel = 0; ///< wheel movement short of a whole step, in eighths of a degree
};

} // namespace brinemark
