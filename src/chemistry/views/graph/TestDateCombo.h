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
    /// `toolTip` is the text itself, not its key. `dates` must outlive the combo box.
    TestDateCombo(TestDatesModel &dates, const QString &objectName, const QString &toolTip);

    /// Call after the dates have changed. The list shows up to 8 dates at a time. Row -1 leaves the box blank.
    void showDates(int selectedRow);

    /// The exact moment of a chosen test, or midnight of a typed day; null for an empty text and for one that is not a
    /// date.
    [[nodiscard]] QDateTime date() const { return m_date; }

    void copyFrom(const TestDateCombo &other);
    void exchangeWith(TestDateCombo &other); ///< both must have the same dates

private:
    struct State {
        int row; ///< -1 for a typed text
        QString text;
        QDateTime date;
    };

    void showState(const State &state);
    void chosen(int row);

    QDateTime m_date;
};

} // namespace brinemark
