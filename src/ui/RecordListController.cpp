#include "ui/RecordListController.h"

#include "model/Tank.h"
#include "ui/Shell.h"

#include <QWidget>

namespace brinemark
{

RecordListController::RecordListController(const RecordListTraits &traits)
    : m_traits(traits)
    , m_model(new RecordTableModel(traits.kind, this))
{
}
RecordListController::~RecordListController()
{
    delete m_view;
}
QWidget *RecordListController::view()
{
    if (!m_view)
        m_view = new QWidget;
    return m_view;
}
void RecordListController::setKeyViewWithTankList(QWidget *, QWidget *) {}
bool RecordListController::hasSelectedRow() const
{
    return false;
}
void RecordListController::deleteSelected() {}
void RecordListController::newEntry() {}
void RecordListController::updateDisplay() {}
Tank *RecordListController::currentTank()
{
    return Shell::shared().currentTank();
}
void RecordListController::journalRecordInserted(Tank &, ContainerKind) {}
void RecordListController::journalRecordRemoved(Tank &, ContainerKind) {}

} // namespace brinemark
