// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemData.h"

namespace brinemark
{

struct FishData final : ItemData {
    using ItemData::ItemData;
    FishData() = default;
    [[nodiscard]] ItemContext itemContext() const override { return ItemContext::Fish; }
};

struct PlantData final : ItemData {
    using ItemData::ItemData;
    PlantData() = default;
    [[nodiscard]] ItemContext itemContext() const override { return ItemContext::Plant; }
};

struct CoralData final : ItemData {
    using ItemData::ItemData;
    CoralData() = default;
    [[nodiscard]] ItemContext itemContext() const override { return ItemContext::Coral; }
};

struct InvertData final : ItemData {
    using ItemData::ItemData;
    InvertData() = default;
    [[nodiscard]] ItemContext itemContext() const override { return ItemContext::Invert; }
};

/// A new record of the kind; plain item data for `None`.
[[nodiscard]] std::shared_ptr<ItemData> makeItemData(ItemContext context, Tank *parent);

} // namespace brinemark
