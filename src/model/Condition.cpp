// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Condition.h"

#include "model/PlistField.h"

namespace brinemark
{

namespace
{

const auto columnInformationKey = QStringLiteral("ConditionColumnInformation");
const auto columnIdentifierKey = QStringLiteral("identifier");
const auto columnWidthKey = QStringLiteral("width");

ColumnInfo columnFromDict(const plist::Dict &dict)
{
    ColumnInfo column;
    if (const plist::Value *identifier = dict.find(columnIdentifierKey))
        column.identifier = plistfield::textOf(*identifier, columnIdentifierKey);
    if (const plist::Value *width = dict.find(columnWidthKey))
        column.width = plistfield::doubleOf(*width, columnWidthKey);
    return column;
}

} // namespace

Condition::Condition(Tank *parent)
    : RecordContainer(ContainerKind::Condition, parent)
{
    initColumnInfoArray();
}

ColumnInfoArray Condition::defaultColumnInfoArray()
{
    ColumnInfoArray columns{{QStringLiteral("date"), 0}};
    for (const Parameter parameter : defaultColumnOrder)
        columns.push_back({traitsOf(parameter).identifier.toString(), 0});
    return columns;
}

plist::Dict Condition::listAttributesDict() const
{
    plist::Array columns;
    for (const ColumnInfo &column : m_columnInfoArray)
        columns.emplace_back(plist::Dict{{columnIdentifierKey, column.identifier}, {columnWidthKey, column.width}});
    plist::Dict attributes = Container::listAttributesDict();
    attributes.insert(columnInformationKey, std::move(columns));
    return attributes;
}

void Condition::readAttributes(const plist::Dict &attributes)
{
    Container::readAttributes(attributes);
    const plist::Value *columns = attributes.find(columnInformationKey);
    if (!columns)
        return;
    m_columnInfoArray.clear();
    for (const plist::Value &column : plistfield::arrayOf(*columns, columnInformationKey))
        m_columnInfoArray.push_back(columnFromDict(plistfield::dictOf(column, columnInformationKey)));
}

} // namespace brinemark
