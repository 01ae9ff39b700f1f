// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/TestDateCombo.h"

#include "base/text/DateText.h"
#include "base/text/Texts.h"
#include "chemistry/views/graph/TestDatesModel.h"

#include <QLineEdit>
#include <QListView>

namespace brinemark
{

TestDateCombo::TestDateCombo(TestDatesModel &dates, Bound bound, const QString &objectName)
    : m_bound(bound)
{
    constexpr int dateLength = 12; // characters
    setObjectName(objectName);
    setToolTip(bound == Bound::Start ? text("GraphStartToolTip") : text("GraphEndToolTip"));
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr); // completion would turn a typed date into a test's date
    setModel(&dates);
    // Measure only the visible dates, so that a list of 10,000 opens without delay.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(dateLength);
    if (auto *list = qobject_cast<QListView *>(view()))
        list->setUniformItemSizes(true);

    connect(lineEdit(), &QLineEdit::textChanged, this, [this] { m_chosen = {}; });
    // Both signals follow textChanged. When the current row is chosen again, only activated() is emitted.
    connect(this, &QComboBox::currentIndexChanged, this, &TestDateCombo::chosen);
    connect(this, &QComboBox::activated, this, &TestDateCombo::chosen);
}

void TestDateCombo::showDates(int selectedRow)
{
    constexpr int mostVisible = 8;
    setMaxVisibleItems(std::clamp(count(), 1, mostVisible));
    setCurrentIndex(selectedRow);
    chosen(selectedRow);
    if (selectedRow < 0)
        clearEditText();
}

QDateTime TestDateCombo::date() const
{
    if (m_chosen.isValid())
        return m_chosen;
    const QDateTime midnight = dateFromCalendarText(currentText(), dateFormatterForLocale());
    return m_bound == Bound::End && midnight.isValid() ? midnight.date().endOfDay() : midnight;
}

void TestDateCombo::copyFrom(const TestDateCombo &other)
{
    showState({other.currentIndex(), other.currentText(), other.m_chosen});
}

void TestDateCombo::exchangeWith(TestDateCombo &other)
{
    const State own{currentIndex(), currentText(), m_chosen};
    copyFrom(other);
    other.showState(own);
}

void TestDateCombo::showState(const State &state)
{
    setCurrentIndex(state.row);
    setEditText(state.text);
    m_chosen = state.chosen;
}

void TestDateCombo::chosen(int row)
{
    m_chosen = itemData(row, TestDatesModel::dateRole).toDateTime();
}

} // namespace brinemark

#include "moc_TestDateCombo.cpp"
