// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/TreeWindow.h"
#include "app/tree/PasteboardTypes.h"
#include "base/plist/XmlWriter.h"
#include "model/Containers.h"

#include <QDir>
#include <QMimeData>

namespace brinemark::test
{

/// Two tanks with one record of each livestock kind in the first, three more fish, and an activity.
struct TwoTanks : TreeWindow {
    std::shared_ptr<Tank> first;
    std::shared_ptr<Tank> second;
    std::vector<std::shared_ptr<ItemData>> records; ///< one of each kind, in the order of the containers

    TwoTanks()
        : TreeWindow(QDir::home().filePath("tanks.xml"))
    {
        first = addTank("first");
        second = addTank("second");
        records = {add<FishData>(*first, "fish"), add<PlantData>(*first, "plant"), add<InvertData>(*first, "invert"),
                   add<CoralData>(*first, "coral")};
        for (const char *name : {"two", "three", "four"})
            add<FishData>(*first, QLatin1String(name));
        first->scheduleListArray().push_back(std::make_shared<ScheduleData>());
        first->scheduleListArray().push_back(std::make_shared<ScheduleData>());
    }

    ItemData &record(ContainerKind kind) { return *records[std::size_t(kind)]; }
    static QStringList fishOf(const Tank &tank) { return listOf(tank.fishListArray(), &FishData::name); }
    quint32 changes() const { return document.changeCount(); }
};

inline std::unique_ptr<QMimeData> pasteboardWith(const QByteArray &livestock, const QByteArray &context)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(pasteboard::livestock, livestock);
    data->setData(pasteboard::itemContext, context);
    return data;
}

inline QByteArray xml(const QString &text)
{
    return plist::writeXml(plist::Value(text));
}

} // namespace brinemark::test
