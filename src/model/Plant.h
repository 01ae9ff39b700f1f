// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/LivestockData.h"
#include "model/RecordContainer.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's plants.
class Plant final : public RecordContainer<PlantData>
{
public:
    explicit Plant(Tank *parent)
        : RecordContainer(ContainerKind::Plant, parent)
    {
    }

    [[nodiscard]] Records &plantArray() { return records(); }
    [[nodiscard]] const Records &plantArray() const { return records(); }

    /// Each record's name and scientific name, then the container's name; empty without records.
    [[nodiscard]] QStringList plantMetaArray() const { return livestockMetaArray(*this); }
};

} // namespace brinemark
