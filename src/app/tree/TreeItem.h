// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Container.h"
#include "model/ItemData.h"
#include "model/Tank.h"

#include <memory>

namespace brinemark
{

/// What a row of the tank tree stands for: a tank, one of its containers, or a livestock record. Empty when no row is
/// meant.
struct TreeItem {
    Tank *tank = nullptr;
    Container *container = nullptr; ///< of the row itself, or of the record's group
    ItemData *record = nullptr;

    TreeItem() = default;
    explicit TreeItem(Tank &tank)
        : tank(&tank)
    {
    }
    explicit TreeItem(Container &container)
        : tank(container.tank())
        , container(&container)
    {
    }
    /// Empty when the record is in no tank.
    explicit TreeItem(ItemData &record);

    [[nodiscard]] bool isNone() const { return !tank; }
    [[nodiscard]] bool isTank() const { return tank && !container; }
    [[nodiscard]] bool isContainer() const { return container && !record; }
    [[nodiscard]] bool isRecord() const { return record != nullptr; }
    [[nodiscard]] bool isLivestockGroup() const { return isContainer() && container->traits().isLivestock(); }

    /// Tanks and livestock groups have rows below them.
    [[nodiscard]] bool isExpandable() const { return isTank() || isLivestockGroup(); }
    /// The tank's flag that keeps the row open; null for a row that does not open.
    [[nodiscard]] bool *expandedFlag() const;

    [[nodiscard]] QString name() const;
    [[nodiscard]] const char *iconName() const;

    friend bool operator==(const TreeItem &, const TreeItem &) = default;
};

} // namespace brinemark
