// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/LivestockData.h"
#include "model/RecordContainer.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's corals.
class Coral final : public RecordContainer<CoralData>
{
public:
    explicit Coral(Tank *parent)
        : RecordContainer(ContainerKind::Coral, parent)
    {
    }

    [[nodiscard]] Records &coralArray() { return records(); }
    [[nodiscard]] const Records &coralArray() const { return records(); }

    /// Each record's name and scientific name, then the container's name; empty without records.
    [[nodiscard]] QStringList coralMetaArray() const { return livestockMetaArray(*this); }
};

} // namespace brinemark
