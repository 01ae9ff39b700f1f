#include "online/views/QZUpdateController.h"
#include <QDialog>

namespace brinemark
{

QZUpdateController::QZUpdateController() = default;
QZUpdateController::~QZUpdateController() = default;
void QZUpdateController::initDefaults() {}
void QZUpdateController::launchUpdateCheck() {}
void QZUpdateController::showScheduleWindow() {}

} // namespace brinemark
