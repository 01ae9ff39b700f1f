// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Record.h"

#include <QDateTime>

namespace brinemark
{

class StyledText;

/// The value of a parameter that was not measured. Any negative value counts as not tested.
inline constexpr qint32 notTested = -1;

/// One water test. Calcium, carbon dioxide and magnesium are whole numbers because the tank file stores them as such.
struct ConditionData final : Record {
    QDateTime date;
    float ph = notTested;
    float ammonia = notTested;
    float nitrate = notTested;
    float nitrite = notTested;
    float gH = notTested;
    float kH = notTested;
    float salt = notTested;
    float temp = notTested;
    float alkalinity = notTested;
    float phosphate = notTested;
    qint32 calcium = notTested;
    float iodine = notTested;
    float oxygen = notTested;
    float copper = notTested;
    float iron = notTested;
    qint32 dioxide = notTested;
    qint32 magnesium = notTested;

    explicit ConditionData(Tank *parent = nullptr); ///< dated now, nothing tested
    explicit ConditionData(Blank) {}

    /// Captions and values of the parameters whose columns the tank shows, in the order of the columns.
    [[nodiscard]] StyledText conditionDataAttributedString() const;
    /// Adds a pair; a value below 0 reads "not tested".
    static void buildStringWithCaption(const QString &caption, const QString &value, StyledText &target);

    [[nodiscard]] RecordType recordType() const override { return RecordType::Condition; }
    /// Copies all but magnesium, which is not tested in the copy.
    [[nodiscard]] std::shared_ptr<Record> copy() const override;
};

} // namespace brinemark
