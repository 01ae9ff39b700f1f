// SPDX-License-Identifier: GPL-3.0-or-later

// Converts a tank to and from the current file form: its properties, its lists' attributes and its lists.

#include "model/PlistField.h"
#include "model/Tank.h"
#include "model/TankProperties.h"
#include "model/TankReadError.h"

namespace brinemark
{

namespace
{

const auto propertiesKey = QStringLiteral("TankProperties");
const auto listPropertiesKey = QStringLiteral("TankListProperties");
const auto listsKey = QStringLiteral("TankLists");
const auto bundleVersionKey = QStringLiteral("bundleVersion");

/// The version as a number. 0 when the value is not a number: only the presence of a version matters, so a malformed
/// one must not make the tank unreadable.
qint64 versionNumber(const plist::Value &version)
{
    if (const qint64 *number = version.integer())
        return *number;
    try {
        return plistfield::integerOf(version, bundleVersionKey);
    } catch (const TankReadError &) {
        return 0;
    }
}

/// The dictionary under a key; an empty one when the key is missing.
const plist::Dict &part(const plist::Dict &dict, const QString &key)
{
    static const plist::Dict none;
    const plist::Value *value = dict.find(key);
    return value ? plistfield::dictOf(*value, key) : none;
}

} // namespace

std::shared_ptr<Tank> Tank::fromDict(const plist::Dict &tankDictionary)
{
    const plist::Dict &properties = part(tankDictionary, propertiesKey);
    const plist::Dict &attributes = part(tankDictionary, listPropertiesKey);
    const plist::Dict &lists = part(tankDictionary, listsKey);

    const std::shared_ptr<Tank> tank(new Tank(Blank{}));
    if (const plist::Value *version = tankDictionary.find(bundleVersionKey))
        tank->bundleVersion = versionNumber(*version);
    readTankProperties(*tank, properties);
    for (const ParameterTraits &traits : parameterTable)
        tank->setTarget(traits.parameter, readTarget(traits.parameter, properties));
    // Files may be older than magnesium and the parameters after it: a target that is not in the file gets a name.
    for (std::size_t i = std::size_t(Parameter::Magnesium); i < parameterCount; ++i) {
        if (!properties.contains(parameterTable[i].targetFileKey))
            tank->setTarget(Parameter(i), plainTarget(Parameter(i)));
    }
    for (const auto &container : tank->m_containers) {
        const QStringView key = container->traits().fileKey;
        container->readArray(lists.find(key), attributes.find(key));
    }
    tank->schedule()->announceOverdue();
    return tank;
}

plist::Dict Tank::tankDictionary() const
{
    plist::Dict attributes;
    plist::Dict lists;
    for (const auto &container : m_containers) {
        const QString key = container->traits().fileKey.toString();
        attributes.insert(key, container->listAttributesDict());
        lists.insert(key, container->dictArray());
    }
    return {{propertiesKey, tankPropertiesDict(*this)},
            {listPropertiesKey, std::move(attributes)},
            {listsKey, std::move(lists)}};
}

} // namespace brinemark
