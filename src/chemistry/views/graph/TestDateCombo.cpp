// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/TestDateCombo.h"

#include "base/text/DateText.h"
#include "chemistry/views/graph/TestDatesModel.h"

#include <QLineEdit>
#include <QListView>

namespace brinemark
{

TestDateCombo::TestDateCombo(TestDatesModel &dates, const QString &objectName, const QString &toolTip)
{
    constexpr int dateLength = 12; // characters
    setObjectName(objectName);
    setToolTip(toolTip);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr); // completion would turn a typed date into a test's date
    setModel(&dates);
    // Measure only the visible dates, so that a list of 10,000 opens without delay.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(dateLength);
    if (auto *list = qobject_cast<QListView *>(view()))
        list->setUniformItemSizes(true);

    connect(lineEdit(), &QLineEdit::textChanged, this,
            [this](const QString &text) { m_date = dateFromCalendarText(text, dateFormatterForLocale()); });
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

void TestDateCombo::copyFrom(const TestDateCombo &other)
{
    showState({other.currentIndex(), other.currentText(), other.m_date});
}

void TestDateCombo::exchangeWith(TestDateCombo &other)
{
    const State own{currentIndex(), currentText(), m_date};
    copyFrom(other);
    other.showState(own);
}

void TestDateCombo::showState(const State &state)
{
    setCurrentIndex(state.row);
    setEditText(state.text);
    m_date = state.date;
}

void TestDateCombo::chosen(int row)
{
    m_date = itemData(row, TestDatesModel::dateRole).toDateTime();
}

} // namespace brinemark

#include "moc_TestDateCombo.cpp"
