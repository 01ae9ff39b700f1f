// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ObjectSpecifier.h"

#include "model/ModelContext.h"
#include "model/Tank.h"
#include "model/TankList.h"

namespace brinemark
{

std::optional<ObjectSpecifier> objectSpecifier(const Tank &tank)
{
    const TankList *tanks = ModelContext::sharedInstance().appTankList();
    const int index = tanks ? tanks->indexOf(&tank) : -1;
    if (index < 0)
        return std::nullopt;
    return ObjectSpecifier{QStringLiteral("appTankList"), index, nullptr};
}

std::optional<ObjectSpecifier> objectSpecifier(const Record &record)
{
    if (!record.tank)
        return std::nullopt;
    const auto tankSpecifier = objectSpecifier(*record.tank.get());
    if (!tankSpecifier)
        return std::nullopt;
    const auto parent = std::make_shared<ObjectSpecifier>(*tankSpecifier);
    if (record.recordType() == RecordType::Target)
        return ObjectSpecifier{QStringLiteral("tankData"), std::nullopt, parent};
    const auto kind = containerKindOf(record);
    const int index = kind ? record.tank->container(*kind)->indexOf(&record) : -1;
    if (index < 0)
        return std::nullopt;
    return ObjectSpecifier{traitsOf(*kind).listKey.toString(), index, parent};
}

} // namespace brinemark
