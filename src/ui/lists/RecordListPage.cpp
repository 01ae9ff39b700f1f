// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordListPage.h"

#include "base/text/Texts.h"
#include "ui/ContainerRooms.h"
#include "ui/EmptyState.h"
#include "ui/IconButton.h"
#include "ui/Icons.h"
#include "ui/ReturnKey.h"
#include "ui/Spacing.h"
#include "ui/TitleLine.h"
#include "ui/lists/RecordCellDelegate.h"
#include "ui/lists/RecordTableView.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QStackedWidget>
#include <QToolButton>

namespace brinemark
{

RecordListPage::RecordListPage(ContainerKind kind, TextKey emptySentence)
    : m_titleLine(new TitleLine)
    , m_table(new RecordTableView([this] { Q_EMIT deleteRequested(); }))
    , m_emptyState(new EmptyState(icon(roomOf(kind).icon), text(emptySentence), text("NewTitle")))
    , m_pages(new QStackedWidget)
    , m_buttonRow(new QHBoxLayout)
    , m_newButton(makeIconButton("New", text("NewButtonToolTip"), QStringLiteral("newButton")))
    , m_deleteButton(makeIconButton("Remove", text("DeleteButtonToolTip"), QStringLiteral("deleteButton")))
{
    QString listName = traitsOf(kind).listKey.toString();
    listName.chop(int(QStringLiteral("ListArray").size()));
    setObjectName(listName + QStringLiteral("View"));
    m_table->setObjectName(listName + QStringLiteral("List"));
    m_table->setAccessibleName(text(traitsOf(kind).nameKey));
    m_table->setItemDelegate(new RecordCellDelegate(m_table));
    m_table->returnPressed = [this] { Q_EMIT newRequested(); };
    m_deleteButton->setEnabled(false);
    m_pages->addWidget(m_table);
    m_pages->addWidget(m_emptyState);
    m_buttonRow->setContentsMargins(spacing::tight, spacing::tight, spacing::tight, spacing::tight);
    m_buttonRow->setSpacing(spacing::tight);
    m_buttonRow->addWidget(m_newButton);
    m_buttonRow->addWidget(m_deleteButton);
    m_buttonRow->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLine);
    column->addWidget(m_pages, 1);
    column->addLayout(m_buttonRow);

    connect(m_emptyState, &EmptyState::addRequested, this, &RecordListPage::newRequested);
    connect(m_newButton, &QToolButton::clicked, this, &RecordListPage::newRequested);
    connect(m_deleteButton, &QToolButton::clicked, this, &RecordListPage::deleteRequested);
}

void RecordListPage::setTitle(const QString &title, const QString &tankName)
{
    m_titleLine->setTitle(title);
    m_titleLine->setSecondary(tankName);
}

void RecordListPage::showEmptyState(bool empty)
{
    m_pages->setCurrentWidget(empty ? static_cast<QWidget *>(m_emptyState) : m_table);
}

void RecordListPage::addActionMenu(QMenu *menu)
{
    m_actionButton = makeIconButton("Action", text("ActionButtonToolTip"), QStringLiteral("actionButton"));
    m_actionButton->setMenu(menu);
    m_actionButton->setPopupMode(QToolButton::InstantPopup);
    m_buttonRow->insertWidget(m_buttonRow->indexOf(m_deleteButton) + 1, m_actionButton);
}

void RecordListPage::linkKeyViews(QWidget *tankTree, QWidget *helpButton)
{
    QWidget *previous = tankTree;
    for (QWidget *next :
         {static_cast<QWidget *>(this), static_cast<QWidget *>(m_table), static_cast<QWidget *>(m_newButton),
          static_cast<QWidget *>(m_deleteButton), static_cast<QWidget *>(m_actionButton), helpButton}) {
        if (next) {
            setTabOrder(previous, next);
            previous = next;
        }
    }
}

void RecordListPage::keyPressEvent(QKeyEvent *event)
{
    if (!isPlainReturn(*event))
        QWidget::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        Q_EMIT newRequested();
}

} // namespace brinemark

#include "moc_RecordListPage.cpp"
