#include "chemistry/views/TankDataEntryController.h"
#include <QDialog>

namespace brinemark
{

TankDataEntryController::TankDataEntryController() = default;
TankDataEntryController::~TankDataEntryController() = default;
void TankDataEntryController::displayTank(std::shared_ptr<Tank>, bool, const QString &) {}
void TankDataEntryController::okAction() {}
void TankDataEntryController::cancelAction() {}

} // namespace brinemark
