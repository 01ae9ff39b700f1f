// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/GraphDateForm.h"

#include "base/text/Texts.h"
#include "chemistry/views/graph/TestDateCombo.h"
#include "ui/CaptionForm.h"
#include "ui/IconButton.h"
#include "ui/Spacing.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace brinemark
{

GraphDateForm::GraphDateForm(TestDatesModel &dates)
    : m_startDateCombo(new TestDateCombo(dates, TestDateCombo::Bound::Start, QStringLiteral("startDateCombo")))
    , m_endDateCombo(new TestDateCombo(dates, TestDateCombo::Bound::End, QStringLiteral("endDateCombo")))
    , m_drawButton(new QPushButton(text("GraphDraw")))
{
    constexpr int readableWidth = 360; // pixels
    setObjectName(QStringLiteral("dateContentView"));
    auto *sentence = new QLabel(text("GraphFormSentence"));
    sentence->setTextFormat(Qt::PlainText);
    sentence->setWordWrap(true);
    sentence->setFixedWidth(readableWidth);
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(m_drawButton, QDialogButtonBox::AcceptRole);
    m_drawButton->setObjectName(QStringLiteral("drawButton"));
    QPushButton *cancel = buttons->addButton(text("CancelLabel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cancelButton"));

    auto *form = new QGridLayout;
    form->setHorizontalSpacing(spacing::group);
    form->setVerticalSpacing(spacing::group);
    addCaptioned(*form, 0, 0, text("GraphStartLabel"), m_startDateCombo);
    addCaptioned(*form, 1, 0, text("GraphEndLabel"), m_endDateCombo);
    QToolButton *swap = makeIconButton("Swap", text("GraphSwapToolTip"), QStringLiteral("swapButton"));
    form->addWidget(swap, 0, 2, 2, 1, Qt::AlignVCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::content);
    column->addWidget(sentence);
    column->addLayout(form);
    column->addWidget(buttons);

    setTabOrder(m_startDateCombo, m_endDateCombo);
    setTabOrder(m_endDateCombo, swap);
    setTabOrder(swap, m_drawButton);
    connect(swap, &QToolButton::clicked, this, &GraphDateForm::swapDates);
    connect(m_drawButton, &QPushButton::clicked, this, &GraphDateForm::drawRequested);
    connect(cancel, &QPushButton::clicked, this, &GraphDateForm::cancelled);
}

void GraphDateForm::swapDates()
{
    m_startDateCombo->exchangeWith(*m_endDateCombo);
}

} // namespace brinemark

#include "moc_GraphDateForm.cpp"
