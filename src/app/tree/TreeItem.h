// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Container.h"
#include "model/ItemData.h"
#include "model/Tank.h"

#include <memory>

namespace brinemark
{

/// The object that a row of the tank tree shows: a tank, one of its containers, or a livestock record. Empty for no
/// row.
struct TreeItem {
    Tank *tank = nullptr;
    Container *container = nullptr; ///< the container of the row itself, or the group of the record
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
    /// Empty when the record belongs to no tank.
    explicit TreeItem(ItemData &record);

    [[nodiscard]] bool isNone() const { return !tank; }
    [[nodiscard]] bool isTank() const { return tank && !container; }
    [[nodiscard]] bool isContainer() const { return container && !record; }
    [[nodiscard]] bool isRecord() const { return record != nullptr; }
    [[nodiscard]] bool isLivestockGroup() const { return isContainer() && container->traits().isLivestock(); }

    [[nodiscard]] bool isExpandable() const { return isTank() || isLivestockGroup(); }
    /// The flag of the tank that stores whether the row is expanded; null for rows that cannot be expanded.
    [[nodiscard]] bool *expandedFlag() const;

    [[nodiscard]] QString name() const;
    [[nodiscard]] const char *iconName() const;

    friend bool operator==(const TreeItem &, const TreeItem &) = default;
};

} // namespace brinemark
