// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/TankProperties.h"

#include "model/PlistField.h"
#include "model/Tank.h"
#include "model/TankReadError.h"

namespace brinemark
{

namespace
{

struct FlagProperty {
    QStringView fileKey;
    bool Tank::*member;
};

constexpr auto flagProperties = std::to_array<FlagProperty>({
    {u"Freshwater", &Tank::freshwater},
    {u"TankExpanded", &Tank::tankExpanded},
    {u"FishExpanded", &Tank::fishExpanded},
    {u"PlantExpanded", &Tank::plantExpanded},
    {u"InvertExpanded", &Tank::invertExpanded},
    {u"CoralExpanded", &Tank::coralExpanded},
});

const auto nameKey = QStringLiteral("Name");
const auto sizeKey = QStringLiteral("Size");
const auto expenseCategoriesKey = QStringLiteral("ExpenseCategories");

QString neededText(const plist::Dict &properties, const QString &key)
{
    if (const plist::Value *value = properties.find(key))
        return plistfield::textOf(*value, key);
    throw TankReadError(QStringLiteral("the tank's \"%1\" is missing").arg(key));
}

} // namespace

void readTankProperties(Tank &tank, const plist::Dict &properties)
{
    for (const FlagProperty &flag : flagProperties) {
        const plist::Value *value = properties.find(flag.fileKey);
        tank.*flag.member = value && plistfield::flagOf(*value, flag.fileKey);
    }
    tank.name = neededText(properties, nameKey);
    tank.size = neededText(properties, sizeKey);

    const plist::Value *categories = properties.find(expenseCategoriesKey);
    if (!categories) {
        tank.expenseCategoryArray = defaultExpenseCategories();
        return;
    }
    tank.expenseCategoryArray.clear();
    for (const plist::Value &category : plistfield::arrayOf(*categories, expenseCategoriesKey))
        tank.expenseCategoryArray << plistfield::textOf(category, expenseCategoriesKey);
}

std::shared_ptr<TankData> readTarget(Parameter parameter, const plist::Dict &properties)
{
    auto target = std::make_shared<TankData>(Blank{});
    const QStringView key = traitsOf(parameter).targetFileKey;
    if (const plist::Value *value = properties.find(key))
        readRecord(*target, plistfield::dictOf(*value, key));
    return target;
}

std::shared_ptr<TankData> plainTarget(Parameter parameter)
{
    auto target = std::make_shared<TankData>(Blank{});
    target->name = text(traitsOf(parameter).targetNameKey);
    return target;
}

plist::Dict tankPropertiesDict(const Tank &tank)
{
    plist::Dict properties;
    for (const FlagProperty &flag : flagProperties)
        properties.insert(flag.fileKey.toString(), plistfield::flagText(tank.*flag.member));
    properties.insert(nameKey, tank.name);
    properties.insert(sizeKey, tank.size);
    plist::Array categories;
    for (const QString &category : tank.expenseCategoryArray)
        categories.emplace_back(category);
    properties.insert(expenseCategoriesKey, std::move(categories));
    for (const ParameterTraits &traits : parameterTable)
        properties.insert(traits.targetFileKey.toString(), recordDict(*tank.target(traits.parameter)));
    return properties;
}

} // namespace brinemark
