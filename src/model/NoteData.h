// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Record.h"

#include <QDateTime>
#include <QString>

namespace brinemark
{

class StyledText;

/// A dated note about the tank.
struct NoteData final : Record {
    QDateTime date;
    QString note;

    explicit NoteData(Tank *parent = nullptr);
    explicit NoteData(Blank) {}

    [[nodiscard]] StyledText noteDataAttributedString() const; ///< captions and values, for reading and printing

    [[nodiscard]] RecordType recordType() const override { return RecordType::Note; }
    [[nodiscard]] std::shared_ptr<Record> copy() const override;
};

} // namespace brinemark
