// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ModelObserver.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>
#include <QPoint>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace brinemark
{

class NotificationContentController;
class NotificationPanel;

/// The notice of overdue activities: a small panel beside the main window with one row per activity, and one item per
/// activity in the dock menu. Rows are collected even before the panel exists; the panel is created when it is first
/// shown.
class NotificationController : public QObject, public Shared<NotificationController>, private ModelObserver
{
    Q_OBJECT

public:
    ~NotificationController() override;

    void setNotificationData(const std::shared_ptr<ScheduleData> &record) override; ///< adds a row
    void shouldShowWindow(bool show) override; ///< sets whether the next `showIfNeeded()` shows the panel
    /// Shows the panel without giving it the focus, if `shouldShowWindow(true)` was called.
    void showIfNeeded();
    void displayInFront(bool key); ///< shows the panel; with `key`, also makes it the active window
    void resetView();              ///< removes all rows, hides the panel and forgets `shouldShowWindow(true)`
    [[nodiscard]] bool isVisible() const;
    [[nodiscard]] QWidget *notePanel(); ///< the panel, created on first use; its object name is "notePanel"

    /// The menu command: closes the panel if it is visible. Otherwise collects the overdue activities of all tanks and
    /// shows them, or beeps when there are none.
    void showOverdue();

    static constexpr QPoint firstPlace{20, 200}; ///< of the panel's top left corner on the screen
    void placeAt(const QPoint &topLeft);

private:
    friend class Shared<NotificationController>;
    NotificationController();

    void doneChecked(ScheduleData &record) override;
    void scheduleDataDeleted(ScheduleData &record) override;
    NotificationPanel &panel(); ///< creates it on first use and adds the rows collected so far
    void windowWillClose();

    std::vector<std::unique_ptr<NotificationContentController>> m_contentArray;
    std::optional<QPoint> m_topLeft;
    bool m_shouldShow = false;
    OwnedWidget<NotificationPanel> m_notePanel;
};

} // namespace brinemark
