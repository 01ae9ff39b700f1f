#include <QWidget>
namespace brinemark
{
class LivestockGroupView : public QWidget
{
};
} // namespace brinemark
#include "livestock/views/LivestockGroupController.h"

namespace brinemark
{

LivestockGroupController::LivestockGroupController() = default;
LivestockGroupController::~LivestockGroupController() = default;
QWidget *LivestockGroupController::view()
{
    if (!m_view)
        m_view = new LivestockGroupView;
    return m_view;
}
void LivestockGroupController::setKeyViewWithTankList(QWidget *, QWidget *) {}
void LivestockGroupController::setContainer(Container *) {}
void LivestockGroupController::newEntry() {}
void LivestockGroupController::updateDisplay() {}
void LivestockGroupController::livestockChanged(Tank &, ContainerKind) {}

} // namespace brinemark
