// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Tank.h"

#include "model/ModelContext.h"
#include "model/TankList.h"

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr Parameter firstMarineParameter = Parameter::Salt;

std::unique_ptr<Container> makeContainer(ContainerKind kind, Tank *tank)
{
    switch (kind) {
    case ContainerKind::Fish:
        return std::make_unique<Fish>(tank);
    case ContainerKind::Plant:
        return std::make_unique<Plant>(tank);
    case ContainerKind::Invert:
        return std::make_unique<Invert>(tank);
    case ContainerKind::Coral:
        return std::make_unique<Coral>(tank);
    case ContainerKind::Condition:
        return std::make_unique<Condition>(tank);
    case ContainerKind::Schedule:
        return std::make_unique<Schedule>(tank);
    case ContainerKind::Inventory:
        return std::make_unique<Inventory>(tank);
    case ContainerKind::Expense:
        return std::make_unique<Expense>(tank);
    case ContainerKind::Note:
        break;
    }
    return std::make_unique<Note>(tank);
}

} // namespace

QStringList defaultExpenseCategories()
{
    return {text("FishName"_key), text("PlantName"_key), text("InvertName"_key), text("CoralName"_key),
            text("ExpenseDefaultEquipmentItem"_key)};
}

Tank::Tank(Blank)
    : freshwater(false)
    , m_anchor(std::make_shared<Tank *>(this))
{
    for (const ContainerTraits &traits : containerTraitsTable)
        m_containers[std::size_t(traits.kind)] = makeContainer(traits.kind, this);
    for (const ParameterTraits &traits : parameterTable)
        setTarget(traits.parameter, std::make_shared<TankData>(this));
}

Tank::Tank(const QString &tankName)
    : Tank(Blank{})
{
    name = tankName;
    freshwater = true;
    size = QLatin1String("");
    expenseCategoryArray = defaultExpenseCategories();
    createDefaultWarningValues();
}

Tank::~Tank()
{
    *m_anchor = nullptr;
}

bool *Tank::expandedFlag(ContainerKind kind)
{
    switch (kind) {
    case ContainerKind::Fish:
        return &fishExpanded;
    case ContainerKind::Plant:
        return &plantExpanded;
    case ContainerKind::Invert:
        return &invertExpanded;
    case ContainerKind::Coral:
        return &coralExpanded;
    default:
        return nullptr;
    }
}

std::vector<Container *> Tank::tankItemsArray() const
{
    std::vector<Container *> items;
    if (m_listsShown) {
        for (const auto &container : m_containers)
            items.push_back(container.get());
    }
    return items;
}

void Tank::showListsInUse()
{
    const auto used = [](const auto &container) { return !container->isEmpty(); };
    m_listsShown = m_listsShown || std::any_of(m_containers.begin(), m_containers.end(), used);
}

Container *Tank::containerForListKey(QStringView listKey) const
{
    const auto kind = containerKindFromListKey(listKey);
    return kind ? container(*kind) : nullptr;
}

TankData *Tank::targetForKey(QStringView targetKey) const
{
    const auto parameter = parameterFromTargetKey(targetKey);
    return parameter ? target(*parameter) : nullptr;
}

void Tank::setTarget(Parameter parameter, std::shared_ptr<TankData> target)
{
    Q_ASSERT(target);
    target->tank = this;
    m_targets[std::size_t(parameter)] = std::move(target);
}

void Tank::createDefaultWarningValues()
{
    createDefaultTargets(Parameter::Temp);
}

void Tank::createDefaultMarineWarningValues()
{
    createDefaultTargets(firstMarineParameter);
}

void Tank::createDefaultTargets(Parameter first)
{
    for (std::size_t i = std::size_t(first); i < parameterCount; ++i) {
        const ParameterTraits &traits = parameterTable[i];
        auto target = std::make_shared<TankData>(this);
        target->name = text(traits.targetNameKey);
        target->preferredValue = traits.preferred.value();
        target->warningOn = traits.warningOn;
        target->deviationOn = traits.warningOn;
        target->deviationValue = traits.deviation.value();
        setTarget(traits.parameter, std::move(target));
    }
}

void Tank::insertItemData(const std::shared_ptr<Record> &record, QStringView arrayKey, int index)
{
    const auto kind = containerKindFromListKey(arrayKey);
    Q_ASSERT(kind);
    Container &destination = *container(*kind);
    const TankList *tanks = ModelContext::sharedInstance().appTankList();
    // The test asks whether the destination holds the record, not whether the first tank does. So a record that is
    // already in the destination is removed from the first tank's list, and any other record from no list. Callers that
    // move a record remove it from its old tank themselves and rely on this.
    if (record->tank && tanks && !tanks->isEmpty() && destination.contains(record.get()))
        tanks->at(0)->container(*kind)->removeEveryOccurrence(record.get());
    record->tank = this;
    destination.insertRecord(record, index);
}

void Tank::removeWithArrayKey(QStringView arrayKey, int index)
{
    Container *list = containerForListKey(arrayKey);
    Q_ASSERT(list);
    list->removeRecordAt(index);
}

void Tank::insertInList(ContainerKind kind, const std::shared_ptr<Record> &record, int index)
{
    insertItemData(record, traitsOf(kind).listKey, index);
    ModelContext::sharedInstance().listGainedRecord(*this, kind);
}

void Tank::removeFromListAtIndex(ContainerKind kind, int index)
{
    removeWithArrayKey(traitsOf(kind).listKey, index);
    ModelContext::sharedInstance().listLostRecord(*this, kind);
}

QStringList Tank::metaTankArray() const
{
    return QStringList{name, size} + fish()->fishMetaArray() + coral()->coralMetaArray() + invert()->invertMetaArray() +
           plant()->plantMetaArray();
}

QString Tank::metaTankString() const
{
    return schedule()->metaScheduleString() + note()->metaNoteString() + inventory()->metaInventoryString() +
           expense()->metaExpenseString() + text("Aquarium"_key) + QLatin1String(", ");
}

} // namespace brinemark
