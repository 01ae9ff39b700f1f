// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ScheduleData.h"

#include "base/Clock.h"
#include "base/text/Texts.h"
#include "model/ModelContext.h"
#include "model/RecordCopy.h"

namespace brinemark
{

ScheduleData::ScheduleData(Tank *parent)
    : Record(parent)
    , date(clock::now())
    , activity(text("NewScheduleItem"_key))
{
}

void ScheduleData::setComplete(bool complete)
{
    m_complete = complete;
    if (m_autoReschedule)
        reScheduleIfNeeded();
    ModelContext::sharedInstance().postDoneChecked(*this);
}

void ScheduleData::setAutoReschedule(bool autoReschedule)
{
    m_autoReschedule = autoReschedule;
    if (!autoReschedule)
        nextDate = 0;
}

void ScheduleData::reScheduleIfNeeded()
{
    ModelContext::sharedInstance().reScheduleIfNeeded(*this);
}

std::shared_ptr<Record> ScheduleData::copy() const
{
    return makeCopy(*this);
}

} // namespace brinemark
