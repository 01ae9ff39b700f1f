// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>
#include <QDateTime>

namespace brinemark
{

class TestDatesModel;

/// Chooses the date of a water test, or takes a day that is typed in the user's short date format. A typed day counts
/// whole: as a start it means its first moment, as an end its last.
class TestDateCombo : public QComboBox
{
    Q_OBJECT

public:
    enum class Bound { Start, End }; ///< which end of a range of dates it asks for

    /// `dates` must outlive the combo box.
    TestDateCombo(TestDatesModel &dates, Bound bound, const QString &objectName);

    /// Call after the dates have changed. The list shows up to 8 dates at a time. Row -1 leaves the box blank.
    void showDates(int selectedRow);

    /// The exact moment of a chosen test, or the first or last moment of a typed day; null for an empty text and for
    /// one that is not a date.
    [[nodiscard]] QDateTime date() const;

    void copyFrom(const TestDateCombo &other);
    void exchangeWith(TestDateCombo &other); ///< both must have the same dates

private:
    struct State {
        int row; ///< of the test that was chosen last
        QString text;
        QDateTime chosen;
    };

    void showState(const State &state);
    void chosen(int row);

    Bound m_bound;
    QDateTime m_chosen; ///< the chosen test's date; null while the text is typed
};

} // namespace brinemark
