// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Container.h"

#include "model/PlistField.h"
#include "model/RecordDict.h"

namespace brinemark
{

namespace
{

const auto sortAscendingSuffix = QLatin1String("SortAscending");
const auto sortIdentifierSuffix = QLatin1String("SortIdentifier");

} // namespace

Container::Container(ContainerKind kind, Tank *parent)
    : m_kind(kind)
    , m_name(text(traitsOf(kind).nameKey))
    , m_tank(parent)
    , m_sortIdentifier(traitsOf(kind).sortIdentifier.toString())
{
}

Container::~Container() = default;

void Container::sortWithIdentifier(const QString &identifier, bool ascending)
{
    m_sortAscending = ascending;
    m_sortIdentifier = identifier;
    sortRecords();
}

void Container::sort()
{
    sortRecords();
}

plist::Array Container::dictArray() const
{
    plist::Array array;
    array.reserve(std::size_t(count()));
    for (int i = 0; i < count(); ++i)
        array.emplace_back(recordDict(*recordAt(i)));
    return array;
}

plist::Dict Container::listAttributesDict() const
{
    const QString prefix = traits().attributePrefix.toString();
    return {{prefix + sortAscendingSuffix, plistfield::flagText(m_sortAscending)},
            {prefix + sortIdentifierSuffix, m_sortIdentifier}};
}

void Container::readArray(const plist::Value *records, const plist::Value *attributes)
{
    if (records) {
        const plist::Array &array = plistfield::arrayOf(*records, traits().fileKey);
        reserve(int(array.size()));
        for (const plist::Value &record : array)
            appendFromDict(plistfield::dictOf(record, traits().fileKey));
    }
    // The sort attributes of livestock lists are written but not read: their records keep the order of the file.
    if (traits().sortedOnLoad) {
        static const plist::Dict none;
        readAttributes(attributes ? plistfield::dictOf(*attributes, traits().fileKey) : none);
    }
}

void Container::readAttributes(const plist::Dict &attributes)
{
    const QString prefix = traits().attributePrefix.toString();
    const plist::Value *ascending = attributes.find(QString(prefix + sortAscendingSuffix));
    const plist::Value *identifier = attributes.find(QString(prefix + sortIdentifierSuffix));
    sortWithIdentifier(identifier ? plistfield::textOf(*identifier, prefix) : QString(),
                       ascending && plistfield::flagOf(*ascending, prefix));
}

} // namespace brinemark
