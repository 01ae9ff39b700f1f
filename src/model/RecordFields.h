// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ConditionData.h"
#include "model/ExpenseData.h"
#include "model/Field.h"
#include "model/InventoryData.h"
#include "model/ItemData.h"
#include "model/NoteData.h"
#include "model/Parameters.h"
#include "model/ScheduleData.h"
#include "model/TankData.h"

namespace brinemark
{

/// A water test's field of a parameter: its keys and encoding are those of the parameter table.
constexpr Field<ConditionData> parameterField(Parameter parameter, Field<ConditionData>::Member member, Missing missing,
                                              Copied copied = Copied::Yes, QStringView onlyWith = {})
{
    const ParameterTraits &traits = traitsOf(parameter);
    const Encoding encoding = traits.integral ? Encoding::IntegerText : Encoding::FloatText;
    return {traits.identifier, traits.testFileKey, member, SortKind::Number, encoding, missing, copied, onlyWith};
}

/// The field of one of the seven parameters that the file form gained together with alkalinity: in a test without
/// alkalinity's key all seven read as a measured 0.
constexpr Field<ConditionData> withAlkalinity(Parameter parameter, Field<ConditionData>::Member member)
{
    return parameterField(parameter, member, Missing::Zero, Copied::Yes, traitsOf(Parameter::Alkalinity).testFileKey);
}

// clang-format off

template <>
struct FieldTable<ItemData> {
    using R = ItemData;
    static constexpr auto fields = std::to_array<Field<R>>({
        {u"ph",          u"ph",          &R::ph,          SortKind::None, Encoding::FloatText},
        {u"KH",          u"KH",          &R::KH,          SortKind::None, Encoding::FloatText},
        {u"temp",        u"Temp",        &R::temp,        SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"gHardness",   u"GHardness",   &R::gHardness,   SortKind::None, Encoding::WholeText},
        {u"sciName",     u"SciName",     &R::sciName,     SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"name",        u"Name",        &R::name,        SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"family",      u"Family",      &R::family,      SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"size",        u"Size",        &R::size,        SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"socialLevel", u"SocialLevel", &R::socialLevel, SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"lifeSpan",    u"LifeSpan",    &R::lifeSpan,    SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"tankLevel",   u"TankLevel",   &R::tankLevel,   SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"diet",        u"Diet",        &R::diet,        SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"breeding",    u"Breeding",    &R::breeding,    SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"care",        u"Care",        &R::care,        SortKind::None, Encoding::Text,        Missing::ReadFails},
        {u"notes",       u"Notes",       &R::notes,       SortKind::None, Encoding::Text,        Missing::Keep},
        {u"salt",        u"Salt",        &R::salt,        SortKind::None, Encoding::FloatText},
        {u"count",       u"Count",       &R::count,       SortKind::None, Encoding::IntegerText},
        {u"reefSafe",    u"ReefSafe",    &R::reefSafe,    SortKind::None, Encoding::Integer,     Missing::Keep, Copied::No},
        {u"itemImage",   u"FishImage",   &R::itemImage,   SortKind::None, Encoding::Picture,     Missing::Keep},
    });
};

template <>
struct FieldTable<ConditionData> {
    using R = ConditionData;
    static constexpr std::array<Field<R>, 1 + parameterCount> fields{{
        {u"date", u"Date", &R::date, SortKind::Date, Encoding::DateText, Missing::Keep},
        parameterField(Parameter::Ph, &R::ph, Missing::Zero),
        parameterField(Parameter::Ammonia, &R::ammonia, Missing::Zero),
        parameterField(Parameter::Nitrate, &R::nitrate, Missing::Zero),
        parameterField(Parameter::Nitrite, &R::nitrite, Missing::Zero),
        parameterField(Parameter::GH, &R::gH, Missing::Zero),
        parameterField(Parameter::KH, &R::kH, Missing::Zero),
        parameterField(Parameter::Salt, &R::salt, Missing::Zero),
        parameterField(Parameter::Temp, &R::temp, Missing::Zero),
        withAlkalinity(Parameter::Alkalinity, &R::alkalinity),
        withAlkalinity(Parameter::Phosphate, &R::phosphate),
        withAlkalinity(Parameter::Calcium, &R::calcium),
        withAlkalinity(Parameter::Iodine, &R::iodine),
        withAlkalinity(Parameter::Oxygen, &R::oxygen),
        withAlkalinity(Parameter::Copper, &R::copper),
        withAlkalinity(Parameter::Iron, &R::iron),
        parameterField(Parameter::Dioxide, &R::dioxide, Missing::Keep),
        parameterField(Parameter::Magnesium, &R::magnesium, Missing::Keep, Copied::No),
    }};
};

/// Whether the fields after the date are the parameters in `recordFieldOrder`, each with a member of its type.
consteval bool conditionFieldsFollowParameters()
{
    for (std::size_t i = 0; i < parameterCount; ++i) {
        const ParameterTraits &traits = traitsOf(recordFieldOrder[i]);
        const Field<ConditionData> &field = FieldTable<ConditionData>::fields[i + 1];
        const bool isWhole = std::holds_alternative<qint32 ConditionData::*>(field.member);
        if (characters(field.key) != characters(traits.identifier) || isWhole != traits.integral)
            return false;
    }
    return true;
}
static_assert(conditionFieldsFollowParameters(),
              "FieldTable<ConditionData> needs one field for each Parameter, in recordFieldOrder");

template <>
struct FieldTable<ExpenseData> {
    using R = ExpenseData;
    static constexpr auto fields = std::to_array<Field<R>>({
        {u"date",    u"Date",    &R::date,    SortKind::Date,   Encoding::DateText, Missing::Keep},
        {u"expense", u"Expense", &R::expense, SortKind::Text,   Encoding::Text,     Missing::ReadFails},
        {u"amount",  u"Amount",  &R::amount,  SortKind::Number, Encoding::Number,   Missing::Keep},
        {u"type",    u"Type",    &R::type,    SortKind::Text,   Encoding::Text,     Missing::ReadFails},
    });
};

template <>
struct FieldTable<InventoryData> {
    using R = InventoryData;
    static constexpr auto fields = std::to_array<Field<R>>({
        {u"item",  u"Item",  &R::item,  SortKind::Text,   Encoding::Text, Missing::ReadFails},
        {u"count", u"Count", &R::count, SortKind::Number, Encoding::IntegerText},
    });
};

template <>
struct FieldTable<NoteData> {
    using R = NoteData;
    static constexpr auto fields = std::to_array<Field<R>>({
        {u"date", u"Date", &R::date, SortKind::Date, Encoding::DateText, Missing::Keep},
        {u"note", u"Note", &R::note, SortKind::Text, Encoding::Text,     Missing::ReadFails},
    });
};

template <>
struct FieldTable<ScheduleData> {
    using R = ScheduleData;
    // The interval to the next date sorts as a flag: activities without one come before all others.
    static constexpr auto fields = std::to_array<Field<R>>({
        {u"date",           u"Date",           &R::date,             SortKind::Date, Encoding::DateText,  Missing::Keep},
        {u"activity",       u"Activity",       &R::activity,         SortKind::Text, Encoding::Text,      Missing::ReadFails},
        {u"complete",       u"Complete",       &R::m_complete,       SortKind::Flag, Encoding::FlagText,  Missing::Zero, Copied::Yes, {}, &R::setComplete},
        {u"nextDate",       u"NextDate",       &R::nextDate,         SortKind::Flag, Encoding::FloatText},
        {u"autoReschedule", u"AutoReschedule", &R::m_autoReschedule, SortKind::Flag, Encoding::FlagText,  Missing::Zero, Copied::Yes, {}, &R::setAutoReschedule},
    });
};

template <>
struct FieldTable<TankData> {
    using R = TankData;
    static constexpr auto fields = std::to_array<Field<R>>({
        {u"name",           u"name",        &R::name,           SortKind::None, Encoding::Text, Missing::Keep},
        {u"preferredValue", u"preferred",   &R::preferredValue, SortKind::None, Encoding::Real},
        {u"warningOn",      u"warningOn",   &R::warningOn,      SortKind::None, Encoding::Flag},
        {u"deviationOn",    u"deviationOn", &R::deviationOn,    SortKind::None, Encoding::Flag},
        {u"deviationValue", u"deviation",   &R::deviationValue, SortKind::None, Encoding::Real},
    });
};

// clang-format on

/// Calls `function` with the record under the type whose field table describes it (the livestock kinds as ItemData).
template <class Function>
decltype(auto) visitRecord(const Record &record, Function &&function)
{
    switch (record.recordType()) {
    case RecordType::Item:
        return function(static_cast<const ItemData &>(record));
    case RecordType::Condition:
        return function(static_cast<const ConditionData &>(record));
    case RecordType::Schedule:
        return function(static_cast<const ScheduleData &>(record));
    case RecordType::Inventory:
        return function(static_cast<const InventoryData &>(record));
    case RecordType::Expense:
        return function(static_cast<const ExpenseData &>(record));
    case RecordType::Note:
        return function(static_cast<const NoteData &>(record));
    case RecordType::Target:
        break;
    }
    return function(static_cast<const TankData &>(record));
}

template <class Function>
decltype(auto) visitRecord(Record &record, Function &&function)
{
    return visitRecord(static_cast<const Record &>(record), [&](const auto &typed) -> decltype(auto) {
        using R = std::remove_cvref_t<decltype(typed)>;
        return function(const_cast<R &>(typed));
    });
}

} // namespace brinemark
