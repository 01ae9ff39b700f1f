// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>
#include <QDateTime>

namespace brinemark
{

class TestDatesModel;

/// Chooses the date of a water test, or takes one that is typed in the user's short date format.
class TestDateCombo : public QComboBox
{
    Q_OBJECT

public:
    /// Looked-up texts. The dates must live as long as the combo box.
    TestDateCombo(TestDatesModel &dates, const QString &objectName, const QString &toolTip);

    /// Takes up new dates: more than 7 show 8 at a time, fewer all. Row -1 leaves the box blank.
    void showDates(int selectedRow);

    /// Exactly the moment of a test that was chosen, midnight of a day that was typed; null for none and for a text
    /// that is no date.
    [[nodiscard]] QDateTime date() const { return m_date; }

    void copyFrom(const TestDateCombo &other);
    void exchangeWith(TestDateCombo &other); ///< both of the same dates

private:
    struct State {
        int row; ///< -1 for a text of its own
        QString text;
        QDateTime date;
    };

    void showState(const State &state);
    void chosen(int row);

    QDateTime m_date;
};

} // namespace brinemark
