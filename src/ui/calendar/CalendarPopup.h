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

/// The calendar's window: a month's page with its buttons, and the time of day. It works on a date of its own and says
/// when the person is done; CalendarController decides what becomes of it.
class CalendarPopup : public QFrame
{
    Q_OBJECT

public:
    /// Begins at `date`; at the present moment, with nothing chosen, when it is invalid or out of range.
    CalendarPopup(const QDateTime &date, QWidget *parent);

    /// The date as it stands, with the time spec (zone or offset) of the date it began at. Seconds stay as long as the
    /// hour and minute do.
    [[nodiscard]] QDateTime date() const;
    /// Whether date() says something else than the date it began at.
    [[nodiscard]] bool isChanged() const;

Q_SIGNALS:
    void finished(bool save);
    /// A press outside the window.
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
    QList<std::pair<QToolButton *, int>> m_pageButtons; ///< with the months that each turns
    int m_wheel = 0;                                    ///< eighths of a degree not yet used
};

} // namespace brinemark
