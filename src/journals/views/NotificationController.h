// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ModelObserver.h"
#include "ui/Shared.h"

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace brinemark
{

class NotificationContentController;
class NotificationPanel;

/// The notice of overdue activities: a small panel beside the main window with a row for each, and an item for each in
/// the dock menu. It gathers rows from its making on; the panel itself is made when it is first shown.
class NotificationController : public QObject, public Shared<NotificationController>, private ModelObserver
{
    Q_OBJECT

public:
    ~NotificationController() override;

    void setNotificationData(const std::shared_ptr<ScheduleData> &record) override; ///< adds a row
    void shouldShowWindow(bool show) override; ///< whether `showIfNeeded` will show the panel
    void showIfNeeded();                       ///< shows the panel without giving it the focus, if it should show
    void displayInFront(bool key);             ///< shows it; as the active window when `key`
    void resetView();                          ///< empties and hides the panel
    [[nodiscard]] bool isVisible() const;
    [[nodiscard]] QWidget *notePanel(); ///< the panel, made if need be; its object name is "notePanel"

    /// The menu command: closes the panel if it shows; otherwise lists what is overdue now, in all tanks, and shows it.
    void showOverdue();

    static constexpr QPoint firstPlace{20, 200}; ///< of the panel's corner on the screen
    void placeAt(const QPoint &topLeft);

private:
    friend class Shared<NotificationController>;
    NotificationController();

    void doneChecked(ScheduleData &record) override;
    void scheduleDataDeleted(ScheduleData &record) override;
    NotificationPanel &panel(); ///< made with the rows that there are
    void windowWillClose();

    std::vector<std::unique_ptr<NotificationContentController>> m_contentArray;
    QPointer<NotificationPanel> m_notePanel;
    std::optional<QPoint> m_topLeft;
    bool m_shouldShow = false;
};

} // namespace brinemark
