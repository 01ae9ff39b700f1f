// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/LivestockData.h"
#include "model/RecordContainer.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's invertebrates.
class Invert final : public RecordContainer<InvertData>
{
public:
    explicit Invert(Tank *parent)
        : RecordContainer(ContainerKind::Invert, parent)
    {
    }

    [[nodiscard]] Records &invertArray() { return records(); }
    [[nodiscard]] const Records &invertArray() const { return records(); }

    /// Each record's name and scientific name, then the container's name; empty without records.
    [[nodiscard]] QStringList invertMetaArray() const { return livestockMetaArray(*this); }
};

} // namespace brinemark
