// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QPushButton;

namespace brinemark
{

class TestDateCombo;
class TestDatesModel;

/// The small form that asks for a range of dates. Object names: itself "dateContentView", "startDateCombo",
/// "endDateCombo", "swapButton", "drawButton", "cancelButton".
class GraphDateForm : public QWidget
{
    Q_OBJECT

public:
    explicit GraphDateForm(TestDatesModel &dates);

    [[nodiscard]] TestDateCombo &startDateCombo() const { return *m_startDateCombo; }
    [[nodiscard]] TestDateCombo &endDateCombo() const { return *m_endDateCombo; }
    [[nodiscard]] QPushButton &drawButton() const { return *m_drawButton; }

    void swapDates(); ///< for a log with its newest test first, whose start comes after its end

Q_SIGNALS:
    void drawRequested();
    void cancelled();

private:
    TestDateCombo *m_startDateCombo;
    TestDateCombo *m_endDateCombo;
    QPushButton *m_drawButton;
};

} // namespace brinemark
