// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/NotificationContentController.h"

#include "base/text/DateText.h"
#include "base/text/Texts.h"
#include "journals/OverdueRules.h"
#include "journals/views/ScheduleListController.h"
#include "model/Tank.h"
#include "ui/Colours.h"
#include "ui/ElidedLabel.h"
#include "ui/IconButton.h"
#include "ui/Shell.h"
#include "ui/Spacing.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QTableView>
#include <QToolButton>

#include <algorithm>

namespace brinemark
{

NotificationContentController::NotificationContentController(std::shared_ptr<ScheduleData> data)
    : m_data(std::move(data))
{
}

NotificationContentController::~NotificationContentController() = default;

QWidget *NotificationContentController::contentView()
{
    if (m_contentView)
        return m_contentView;
    m_contentView = new QWidget;
    m_contentView->setObjectName(QStringLiteral("notificationView"));
    m_noteComplete = new QCheckBox;
    m_noteComplete->setObjectName(QStringLiteral("noteComplete"));
    m_noteComplete->setToolTip(text("DoneColumnTooltip"));
    m_noteComplete->setAccessibleName(m_data->activity);
    auto *activity = new ElidedLabel(m_data->activity);
    QFont bold = activity->font();
    bold.setBold(true);
    activity->setFont(bold);
    const QString date = localeDateText(m_data->date);
    auto *where =
        new ElidedLabel(m_data->tank ? fillPlaceholders(text("MainViewTitle"), {m_data->tank->name, date}) : date);
    where->setPalette(quietPalette(where->palette()));
    m_linkButton = makeIconButton("ScheduleSmall", text("NotificationGoTo"), QStringLiteral("linkButton"));

    auto *words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(activity);
    words->addWidget(where);
    auto *line = new QHBoxLayout(m_contentView);
    line->setContentsMargins(spacing::section, spacing::tight, spacing::group, spacing::tight);
    line->setSpacing(spacing::group);
    line->addWidget(m_noteComplete);
    line->addLayout(words, 1);
    line->addWidget(m_linkButton);

    connect(m_noteComplete, &QCheckBox::clicked, this, &NotificationContentController::setComplete);
    connect(m_linkButton, &QToolButton::clicked, this, &NotificationContentController::gotoDataAction);
    scheduleDataChecked();
    if (m_deleted)
        scheduleDataDeleted();
    return m_contentView;
}

void NotificationContentController::addToDockMenu(QMenu &menu)
{
    const QString heading = dockMenuTankTitle(m_data->tank ? m_data->tank->name : QString());
    const QList<QAction *> items = menu.actions();
    if (std::none_of(items.begin(), items.end(), [&](const QAction *item) { return item->text() == heading; }))
        menu.addAction(heading)->setEnabled(false);
    m_dockItem = menu.addAction(dockMenuActivityTitle(m_data->activity));
    m_dockItem->setCheckable(true);
    m_dockItem->setChecked(m_data->complete());
    connect(m_dockItem, &QAction::triggered, this, &NotificationContentController::setComplete);
}

void NotificationContentController::setComplete(bool complete)
{
    if (m_deleted || !m_data->tank)
        return;
    m_data->setComplete(complete);
    Shell::shared().documentModifiedWithChange(true);
}

void NotificationContentController::scheduleDataChecked()
{
    if (m_noteComplete)
        m_noteComplete->setChecked(m_data->complete());
    if (m_dockItem)
        m_dockItem->setChecked(m_data->complete());
}

void NotificationContentController::scheduleDataDeleted()
{
    m_deleted = true;
    delete m_dockItem;
    if (m_contentView) {
        m_noteComplete->setEnabled(false);
        m_linkButton->setEnabled(false);
    }
}

void NotificationContentController::gotoDataAction()
{
    if (m_deleted || !m_data->tank)
        return;
    Shell::shared().selectInTree(*m_data->tank->schedule());
    ScheduleListController &schedule = ScheduleListController::sharedInstance();
    schedule.selectRecord(*m_data);
    Shell::shared().mainWindow()->activateWindow();
    if (schedule.table())
        schedule.table()->setFocus();
}

} // namespace brinemark

#include "moc_NotificationContentController.cpp"
