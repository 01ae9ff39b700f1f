#include <QDialog>
namespace brinemark
{
class NotificationPanel : public QDialog
{
};
class NotificationContentController
{
};
} // namespace brinemark
#include "journals/views/NotificationController.h"

namespace brinemark
{

NotificationController::NotificationController() = default;
NotificationController::~NotificationController() = default;
void NotificationController::setNotificationData(const std::shared_ptr<ScheduleData> &) {}
void NotificationController::shouldShowWindow(bool show)
{
    m_shouldShow = show;
}
void NotificationController::showIfNeeded() {}
void NotificationController::displayInFront(bool) {}
void NotificationController::resetView() {}
bool NotificationController::isVisible() const
{
    return false;
}
QWidget *NotificationController::notePanel()
{
    return nullptr;
}
void NotificationController::showOverdue() {}
void NotificationController::placeAt(const QPoint &) {}
void NotificationController::doneChecked(ScheduleData &) {}
void NotificationController::scheduleDataDeleted(ScheduleData &) {}

} // namespace brinemark
