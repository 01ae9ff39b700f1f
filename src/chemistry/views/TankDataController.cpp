#include "chemistry/views/TankDataController.h"
#include <QWidget>

namespace brinemark
{

TankDataController::TankDataController() = default;
TankDataController::~TankDataController() = default;
QWidget *TankDataController::view()
{
    if (!m_view)
        m_view = new QWidget;
    return m_view;
}
void TankDataController::setKeyViewWithTankList(QWidget *, QWidget *) {}
void TankDataController::display() {}
void TankDataController::editAction() {}
bool TankDataController::eventFilter(QObject *, QEvent *)
{
    return false;
}

} // namespace brinemark
