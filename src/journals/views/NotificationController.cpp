// SPDX-License-Identifier: GPL-3.0-or-later

#include "journals/views/NotificationController.h"

#include "base/Clock.h"
#include "base/PreferenceKeys.h"
#include "journals/OverdueRules.h"
#include "journals/views/NotificationContentController.h"
#include "journals/views/NotificationPanel.h"
#include "ui/Alerts.h"
#include "ui/Shell.h"

namespace brinemark
{

namespace
{

constexpr float firstHeight = 117; ///< pixels

} // namespace

NotificationController::NotificationController() = default;

NotificationController::~NotificationController() = default;

// ---- rows

void NotificationController::setNotificationData(const std::shared_ptr<ScheduleData> &record)
{
    auto &row = *m_contentArray.emplace_back(std::make_unique<NotificationContentController>(record));
    row.addToDockMenu(Shell::shared().dockMenu());
    if (m_notePanel)
        m_notePanel->addRow(row.contentView());
}

void NotificationController::doneChecked(ScheduleData &record)
{
    for (const auto &row : m_contentArray) {
        if (&row->data() == &record)
            row->scheduleDataChecked();
    }
}

void NotificationController::scheduleDataDeleted(ScheduleData &record)
{
    for (const auto &row : m_contentArray) {
        if (&row->data() == &record)
            row->scheduleDataDeleted();
    }
}

// ---- the panel

NotificationPanel &NotificationController::panel()
{
    if (!m_notePanel) {
        m_notePanel = new NotificationPanel(Shell::shared().mainWindow());
        m_notePanel->move(m_topLeft.value_or(firstPlace));
        connect(m_notePanel, &ToolPanel::closedByUser, this, &NotificationController::windowWillClose);
        for (const auto &row : m_contentArray)
            m_notePanel->addRow(row->contentView());
    }
    return *m_notePanel;
}

QWidget *NotificationController::notePanel()
{
    return &panel();
}

void NotificationController::placeAt(const QPoint &topLeft)
{
    m_topLeft = topLeft;
    if (m_notePanel)
        m_notePanel->move(topLeft);
}

void NotificationController::shouldShowWindow(bool show)
{
    m_shouldShow = show;
}

void NotificationController::showIfNeeded()
{
    if (m_shouldShow)
        displayInFront(false);
    m_shouldShow = false;
}

void NotificationController::displayInFront(bool key)
{
    NotificationPanel &panel = this->panel();
    const float stored = Preferences::shared().value(preference::notificationWindowHeight, 0);
    panel.fitHeight(int(stored > 0 ? stored : firstHeight));
    panel.setAttribute(Qt::WA_ShowWithoutActivating, !key);
    panel.show();
    panel.raise();
    if (key)
        panel.activateWindow();
}

void NotificationController::resetView()
{
    m_contentArray.clear();
    m_shouldShow = false; // it was set for the rows that are now gone
    if (m_notePanel)
        m_notePanel->hide();
    Shell::shared().rebuildDockMenu();
}

bool NotificationController::isVisible() const
{
    return m_notePanel && m_notePanel->isVisible();
}

void NotificationController::windowWillClose()
{
    const int height = m_notePanel->height();
    resetView();
    Preferences::shared().set(preference::notificationWindowHeight, float(height));
    Preferences::shared().flush();
}

void NotificationController::showOverdue()
{
    if (isVisible()) {
        m_notePanel->close();
        return;
    }
    resetView();
    for (const auto &activity : overdueActivities(Shell::shared().tankList(), clock::now()))
        setNotificationData(activity);
    if (m_contentArray.empty())
        beep();
    else
        displayInFront(true);
}

} // namespace brinemark

#include "moc_NotificationController.cpp"
