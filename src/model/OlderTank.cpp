// SPDX-License-Identifier: GPL-3.0-or-later

// Reads a tank of the older file form: an array that contains an attribute array and five record arrays. A tank then
// had fish, water tests, a schedule, an inventory and notes only.

#include "model/PlistField.h"
#include "model/Tank.h"
#include "model/TankProperties.h"
#include "model/TankReadError.h"

#include <algorithm>

namespace brinemark
{

namespace
{

/// The lists of the older form, in file order; the first is at index 1 of both arrays.
constexpr std::array<ContainerKind, 5> olderLists{ContainerKind::Fish, ContainerKind::Condition,
                                                  ContainerKind::Schedule, ContainerKind::Inventory,
                                                  ContainerKind::Note};

/// If there are attributes for more lists than the older form has, only the tank's properties and targets are read.
bool readsLists(const plist::Array &attributes)
{
    return attributes.size() <= olderLists.size() + 1;
}

const plist::Value &element(const plist::Array &array, std::size_t index)
{
    if (index >= array.size())
        throw TankReadError(QStringLiteral("an older tank ends before element %1").arg(index));
    return array[index];
}

void readTargets(Tank &tank, const plist::Dict &properties)
{
    const auto has = [&](Parameter parameter) { return properties.contains(traitsOf(parameter).targetFileKey); };
    const auto readRange = [&](Parameter first, Parameter last) {
        for (std::size_t i = std::size_t(first); i <= std::size_t(last); ++i)
            tank.setTarget(Parameter(i), readTarget(Parameter(i), properties));
    };
    if (!has(Parameter::Temp)) {
        tank.createDefaultWarningValues();
        return;
    }
    readRange(Parameter::Temp, Parameter::KH);
    if (has(Parameter::Alkalinity)) {
        readRange(Parameter::Salt, Parameter::Iron);
        return;
    }
    // The marine defaults include salt; a salt target in the file takes precedence.
    tank.createDefaultMarineWarningValues();
    if (has(Parameter::Salt))
        readRange(Parameter::Salt, Parameter::Salt);
}

} // namespace

std::shared_ptr<Tank> Tank::fromArray(const plist::Array &olderTank)
{
    const plist::Array &attributes = plistfield::arrayOf(element(olderTank, 0), u"an older tank's attributes");
    const plist::Dict &properties = plistfield::dictOf(element(attributes, 0), u"an older tank's properties");

    const std::shared_ptr<Tank> tank(new Tank(Blank{}));
    readTankProperties(*tank, properties);
    readTargets(*tank, properties);

    tank->m_listsShown = readsLists(attributes);
    if (!tank->m_listsShown)
        return tank;
    for (std::size_t i = 0; i < olderLists.size(); ++i)
        tank->container(olderLists[i])->readArray(&element(olderTank, i + 1), &element(attributes, i + 1));
    // The older form has no target for carbon dioxide and the parameters after it.
    for (std::size_t i = std::size_t(Parameter::Dioxide); i < parameterCount; ++i)
        tank->setTarget(Parameter(i), plainTarget(Parameter(i)));
    tank->schedule()->announceOverdue();
    return tank;
}

bool Tank::fromArrayLeavesOut(const plist::Array &olderTank)
{
    const plist::Array &attributes = plistfield::arrayOf(element(olderTank, 0), u"an older tank's attributes");
    const std::size_t read = readsLists(attributes) ? olderLists.size() + 1 : 1;
    const auto holdsSomething = [](const plist::Value &value) { return !value.array() || !value.array()->empty(); };
    return olderTank.size() > read &&
           std::any_of(olderTank.begin() + std::ptrdiff_t(read), olderTank.end(), holdsSomething);
}

} // namespace brinemark
