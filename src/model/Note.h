// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/NoteData.h"
#include "model/RecordContainer.h"
#include "model/SearchMetadata.h"

namespace brinemark
{

/// A tank's note list.
class Note final : public RecordContainer<NoteData>
{
public:
    explicit Note(Tank *parent)
        : RecordContainer(ContainerKind::Note, parent)
    {
    }

    [[nodiscard]] Records &noteArray() { return records(); }
    [[nodiscard]] const Records &noteArray() const { return records(); }

    /// The texts of the first five records, each followed by a comma and a blank.
    [[nodiscard]] QString metaNoteString() const { return journalMetaString(*this, u"note"); }
};

} // namespace brinemark
