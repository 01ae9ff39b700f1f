// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/NotificationPanel.h"

#include "base/text/Texts.h"
#include "ui/HelpWindow.h"
#include "ui/Spacing.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace brinemark
{

namespace
{

constexpr int openingWidth = 420; ///< pixels
constexpr int scrollingStep = 20; ///< pixels

} // namespace

NotificationPanel::NotificationPanel(QWidget *parent)
    : ToolPanel(parent)
    , m_scrollView(new QScrollArea)
{
    setObjectName(QStringLiteral("notePanel"));
    showHelpOnKey(this, QStringLiteral("overdue"));
    setWindowTitle(text("DockMenuTitle"));
    auto *content = new QWidget;
    m_rows = new QVBoxLayout(content);
    m_rows->setContentsMargins(0, spacing::tight, 0, spacing::tight);
    m_rows->setSpacing(0);
    m_rows->setAlignment(Qt::AlignTop);
    m_scrollView->setAccessibleName(windowTitle());
    m_scrollView->setFrameShape(QFrame::NoFrame);
    m_scrollView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollView->setWidgetResizable(true);
    m_scrollView->verticalScrollBar()->setSingleStep(scrollingStep);
    m_scrollView->setWidget(content);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_scrollView);
    resize(openingWidth, sizeHint().height());
}

void NotificationPanel::addRow(QWidget *row)
{
    if (m_rows->indexOf(row) < 0)
        m_rows->addWidget(row);
    setMaximumHeight(m_rows->sizeHint().height());
}

void NotificationPanel::fitHeight(int wanted)
{
    setMaximumHeight(m_rows->sizeHint().height());
    resize(width(), std::min(wanted, maximumHeight()));
}

} // namespace brinemark

#include "moc_NotificationPanel.cpp"
