// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/LivestockData.h"
#include "model/RecordContainer.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's fish.
class Fish final : public RecordContainer<FishData>
{
public:
    explicit Fish(Tank *parent)
        : RecordContainer(ContainerKind::Fish, parent)
    {
    }

    [[nodiscard]] Records &fishArray() { return records(); }
    [[nodiscard]] const Records &fishArray() const { return records(); }

    /// Each record's name and scientific name, then the container's name; empty without records.
    [[nodiscard]] QStringList fishMetaArray() const { return livestockMetaArray(*this); }
};

} // namespace brinemark
