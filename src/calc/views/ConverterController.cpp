#include <QDialog>
namespace brinemark
{
class ConverterPanel : public QDialog
{
};
} // namespace brinemark
#include "calc/views/ConverterController.h"

namespace brinemark
{

ConverterController::ConverterController() = default;
ConverterController::~ConverterController() = default;
void ConverterController::toggleConverter() {}
void ConverterController::displayWithoutKey() {}
bool ConverterController::isVisible() const
{
    return false;
}

} // namespace brinemark
