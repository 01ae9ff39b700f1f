#include <QWidget>
namespace brinemark
{
class ProfileView : public QWidget
{
};
} // namespace brinemark
#include "livestock/views/FishDataController.h"

namespace brinemark
{

FishDataController::FishDataController() = default;
FishDataController::~FishDataController() = default;
QWidget *FishDataController::view()
{
    if (!m_view)
        m_view = new ProfileView;
    return m_view;
}
void FishDataController::setKeyViewWithTankList(QWidget *, QWidget *) {}
void FishDataController::displayItemData(ItemData *) {}
void FishDataController::updateDisplay() {}
void FishDataController::editInfo() {}

} // namespace brinemark
