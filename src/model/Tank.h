// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "model/Containers.h"
#include "model/Parameters.h"
#include "model/TankData.h"

#include <QStringList>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace brinemark
{

/// One aquarium: its properties, nine containers and seventeen targets. Held by `std::shared_ptr`; owns its containers
/// and targets. Inserting and removing records neither registers an undo step nor counts a document change; controllers
/// do both.
class Tank : public std::enable_shared_from_this<Tank>
{
public:
    explicit Tank(const QString &name); ///< a new tank, with the default targets and categories
    ~Tank();
    Tank(const Tank &) = delete;
    Tank &operator=(const Tank &) = delete;

    /// Builds a tank from the current file form.
    /// \throws TankReadError when a text that it needs is missing or a value is of the wrong kind
    [[nodiscard]] static std::shared_ptr<Tank> fromDict(const plist::Dict &tankDictionary);
    /// Builds a tank from the older file form (see OlderTank.cpp). Throws as `fromDict` does.
    [[nodiscard]] static std::shared_ptr<Tank> fromArray(const plist::Array &olderTank);
    /// Whether `fromArray` leaves out elements of the array that are not empty.
    [[nodiscard]] static bool fromArrayLeavesOut(const plist::Array &olderTank);
    [[nodiscard]] plist::Dict tankDictionary() const;

    QString name;
    bool freshwater = true;
    QString size; ///< free text, as typed
    bool tankExpanded = false;
    bool fishExpanded = false;
    bool plantExpanded = false;
    bool coralExpanded = false;
    bool invertExpanded = false;
    QStringList expenseCategoryArray;
    std::optional<qint64> bundleVersion; ///< of the file that the tank was read from; none for a new tank

    [[nodiscard]] Tank *tank() { return this; } ///< for code that treats tanks and records alike

    /// The flag that a livestock group's tree row is expanded ("fishExpanded" ...); null for the journals, whose rows
    /// have no children.
    [[nodiscard]] bool *expandedFlag(ContainerKind kind);

    /// The nine containers in the order of ContainerKind. Empty for a tank of the older file form with attributes for
    /// more lists than that form has: such a tank shows no lists, although its containers exist and are empty.
    [[nodiscard]] std::vector<Container *> tankItemsArray() const;
    /// Gives a tank that shows no lists all nine as soon as one of them holds a record.
    void showListsInUse();
    [[nodiscard]] Container *container(ContainerKind kind) const { return m_containers[std::size_t(kind)].get(); }
    [[nodiscard]] Container *containerForListKey(QStringView listKey) const; ///< null for an unknown key

    [[nodiscard]] Fish *fish() const { return as<Fish>(ContainerKind::Fish); }
    [[nodiscard]] Plant *plant() const { return as<Plant>(ContainerKind::Plant); }
    [[nodiscard]] Invert *invert() const { return as<Invert>(ContainerKind::Invert); }
    [[nodiscard]] Coral *coral() const { return as<Coral>(ContainerKind::Coral); }
    [[nodiscard]] Condition *condition() const { return as<Condition>(ContainerKind::Condition); }
    [[nodiscard]] Schedule *schedule() const { return as<Schedule>(ContainerKind::Schedule); }
    [[nodiscard]] Inventory *inventory() const { return as<Inventory>(ContainerKind::Inventory); }
    [[nodiscard]] Expense *expense() const { return as<Expense>(ContainerKind::Expense); }
    [[nodiscard]] Note *note() const { return as<Note>(ContainerKind::Note); }

    // References to the record lists, not copies.
    [[nodiscard]] Fish::Records &fishListArray() const { return fish()->fishArray(); }
    [[nodiscard]] Plant::Records &plantListArray() const { return plant()->plantArray(); }
    [[nodiscard]] Invert::Records &invertListArray() const { return invert()->invertArray(); }
    [[nodiscard]] Coral::Records &coralListArray() const { return coral()->coralArray(); }
    [[nodiscard]] Condition::Records &conditionListArray() const { return condition()->conditionArray(); }
    [[nodiscard]] Schedule::Records &scheduleListArray() const { return schedule()->scheduleArray(); }
    [[nodiscard]] Inventory::Records &inventoryListArray() const { return inventory()->inventoryArray(); }
    [[nodiscard]] Expense::Records &expenseListArray() const { return expense()->expenseArray(); }
    [[nodiscard]] Note::Records &noteListArray() const { return note()->noteArray(); }

    /// The target of a parameter; never null.
    [[nodiscard]] TankData *target(Parameter parameter) const { return m_targets[std::size_t(parameter)].get(); }
    [[nodiscard]] TankData *targetForKey(QStringView targetKey) const; ///< "tempData" ...; null for an unknown key
    void setTarget(Parameter parameter, std::shared_ptr<TankData> target);

    [[nodiscard]] TankData *tempData() const { return target(Parameter::Temp); }
    [[nodiscard]] TankData *phData() const { return target(Parameter::Ph); }
    [[nodiscard]] TankData *ammoniaData() const { return target(Parameter::Ammonia); }
    [[nodiscard]] TankData *nitrateData() const { return target(Parameter::Nitrate); }
    [[nodiscard]] TankData *nitriteData() const { return target(Parameter::Nitrite); }
    [[nodiscard]] TankData *gHData() const { return target(Parameter::GH); }
    [[nodiscard]] TankData *kHData() const { return target(Parameter::KH); }
    [[nodiscard]] TankData *saltData() const { return target(Parameter::Salt); }
    [[nodiscard]] TankData *alkalinityData() const { return target(Parameter::Alkalinity); }
    [[nodiscard]] TankData *phosphateData() const { return target(Parameter::Phosphate); }
    [[nodiscard]] TankData *calciumData() const { return target(Parameter::Calcium); }
    [[nodiscard]] TankData *iodineData() const { return target(Parameter::Iodine); }
    [[nodiscard]] TankData *oxygenData() const { return target(Parameter::Oxygen); }
    [[nodiscard]] TankData *copperData() const { return target(Parameter::Copper); }
    [[nodiscard]] TankData *ironData() const { return target(Parameter::Iron); }
    [[nodiscard]] TankData *dioxideData() const { return target(Parameter::Dioxide); }
    [[nodiscard]] TankData *magnesiumData() const { return target(Parameter::Magnesium); }

    void createDefaultWarningValues();       ///< replaces all targets by the defaults of the parameter table
    void createDefaultMarineWarningValues(); ///< replaces only the last ten, salt to magnesium

    // ---- changing the lists by key or name: kept complete for the scripting interface, also where nothing calls it
    // yet

    /// Makes this the record's tank and inserts the record into the list of the key before `index`; past the end it is
    /// appended. Before that it may remove the record from the first tank's list, by an unusual rule (see Tank.cpp).
    void insertItemData(const std::shared_ptr<Record> &record, QStringView arrayKey, int index);
    /// Removes the record; its `tank` is unchanged. An index out of range is a programming error.
    void removeWithArrayKey(QStringView arrayKey, int index);

    // The same for each list by name, followed by a notice to the observers (see ModelObserver).
    void insertInFishListArray(const std::shared_ptr<FishData> &record, int index);
    void insertInPlantListArray(const std::shared_ptr<PlantData> &record, int index);
    void insertInInvertListArray(const std::shared_ptr<InvertData> &record, int index);
    void insertInCoralListArray(const std::shared_ptr<CoralData> &record, int index);
    void insertInScheduleListArray(const std::shared_ptr<ScheduleData> &record, int index);
    void insertInNoteListArray(const std::shared_ptr<NoteData> &record, int index);
    void insertInConditionListArray(const std::shared_ptr<ConditionData> &record, int index);
    void insertInInventoryListArray(const std::shared_ptr<InventoryData> &record, int index);
    void insertInExpenseListArray(const std::shared_ptr<ExpenseData> &record, int index);
    void removeFromFishListArrayAtIndex(int index);
    void removeFromPlantListArrayAtIndex(int index);
    void removeFromInvertListArrayAtIndex(int index);
    void removeFromCoralListArrayAtIndex(int index);
    void removeFromScheduleListArrayAtIndex(int index);
    void removeFromNoteListArrayAtIndex(int index);
    void removeFromConditionListArrayAtIndex(int index);
    void removeFromInventoryListArrayAtIndex(int index);
    void removeFromExpenseListArrayAtIndex(int index);

    // The same for a kind that is known only at run time.
    void insertInList(ContainerKind kind, const std::shared_ptr<Record> &record, int index);
    void removeFromListAtIndex(ContainerKind kind, int index);

    // Words for the system's search index, written into the file's attributes.
    [[nodiscard]] QStringList metaTankArray() const;
    [[nodiscard]] QString metaTankString() const;

private:
    friend class TankRef;

    explicit Tank(Blank); ///< containers, but no targets or categories yet

    void createDefaultTargets(Parameter first);

    template <class C>
    [[nodiscard]] C *as(ContainerKind kind) const
    {
        return static_cast<C *>(container(kind));
    }

    std::shared_ptr<Tank *> m_anchor; ///< shared with the records' TankRefs; set to null by ~Tank()
    bool m_listsShown = true;
    std::array<std::unique_ptr<Container>, containerCount> m_containers;
    std::array<std::shared_ptr<TankData>, parameterCount> m_targets;
};

/// The five expense categories of a new tank.
[[nodiscard]] QStringList defaultExpenseCategories();

} // namespace brinemark
