#include <QDialog>
namespace brinemark
{
class ItemSheet : public QDialog
{
};
} // namespace brinemark
#include "livestock/views/FishDataEntryController.h"

namespace brinemark
{

FishDataEntryController::FishDataEntryController() = default;
FishDataEntryController::~FishDataEntryController() = default;
void FishDataEntryController::displayItemData(ItemData *, ItemContext) {}

} // namespace brinemark
