// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ModelObserver.h"

#include "model/ModelContext.h"

namespace brinemark
{

ModelObserver::ModelObserver()
{
    ModelContext::sharedInstance().m_observers.push_back(this);
}

ModelObserver::~ModelObserver()
{
    std::erase(ModelContext::sharedInstance().m_observers, this);
}

void ModelObserver::livestockChanged(Tank &, ContainerKind) {}
void ModelObserver::journalRecordInserted(Tank &, ContainerKind) {}
void ModelObserver::journalRecordRemoved(Tank &, ContainerKind) {}
void ModelObserver::doneChecked(ScheduleData &) {}
void ModelObserver::scheduleDataDeleted(ScheduleData &) {}
void ModelObserver::setNotificationData(const std::shared_ptr<ScheduleData> &) {}
void ModelObserver::shouldShowWindow(bool) {}

} // namespace brinemark
