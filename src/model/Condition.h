// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ColumnInfo.h"
#include "model/ConditionData.h"
#include "model/RecordContainer.h"

namespace brinemark
{

/// A tank's water tests, and the columns that their table shows.
class Condition final : public RecordContainer<ConditionData>
{
public:
    explicit Condition(Tank *parent);

    [[nodiscard]] Records &conditionArray() { return records(); }
    [[nodiscard]] const Records &conditionArray() const { return records(); }

    [[nodiscard]] const ColumnInfoArray &columnInfoArray() const { return m_columnInfoArray; }
    void setColumnInfoArray(const ColumnInfoArray &columns) { m_columnInfoArray = columns; }
    void initColumnInfoArray() { m_columnInfoArray = defaultColumnInfoArray(); }
    [[nodiscard]] static ColumnInfoArray defaultColumnInfoArray(); ///< eighteen columns

    [[nodiscard]] plist::Dict listAttributesDict() const override;

protected:
    void readAttributes(const plist::Dict &attributes) override;

private:
    ColumnInfoArray m_columnInfoArray;
};

} // namespace brinemark
