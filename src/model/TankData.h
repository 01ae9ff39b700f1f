// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Record.h"

#include <QString>

namespace brinemark
{

/// The target of one water parameter.
struct TankData final : Record {
    QString name; ///< the parameter's display name when the target was created; null when the file had none
    float preferredValue = 0;
    bool warningOn = false;
    bool deviationOn = false; ///< a band around the preferred value is in use
    float deviationValue = 0; ///< half the width of that band

    explicit TankData(Tank *parent = nullptr)
        : Record(parent)
    {
    }
    explicit TankData(Blank) {}

    [[nodiscard]] RecordType recordType() const override { return RecordType::Target; }
    [[nodiscard]] std::shared_ptr<Record> copy() const override;
};

} // namespace brinemark
