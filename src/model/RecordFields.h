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
constexpr Field<ConditionData> parameterField(Parameter parameter, Field<ConditionData>::Member member,
                                              Missing missing = Missing::Zero, Copied copied = Copied::Yes,
                                              QStringView onlyWith = {})
{
    const ParameterTraits &traits = traitsOf(parameter);
    const Encoding encoding = traits.integral ? Encoding::IntegerText : Encoding::FloatText;
    return {traits.identifier, traits.testFileKey, member, encoding, missing, copied, onlyWith, nullptr};
}

/// One of the seven that came with alkalinity: in a test without that key all of them read as a measured 0.
constexpr Field<ConditionData> withAlkalinity(Parameter parameter, Field<ConditionData>::Member member)
{
    return parameterField(parameter, member, Missing::Zero, Copied::Yes, traitsOf(Parameter::Alkalinity).testFileKey);
}

// clang-format off

template <>
struct FieldTable<ItemData> {
    using R = ItemData;
    static constexpr std::array<Field<R>, 19> fields{{
        {u"ph",          u"ph",          &R::ph,          Encoding::FloatText},
        {u"KH",          u"KH",          &R::KH,          Encoding::FloatText},
        {u"temp",        u"Temp",        &R::temp,        Encoding::Text,        Missing::ReadFails},
        {u"gHardness",   u"GHardness",   &R::gHardness,   Encoding::WholeText},
        {u"sciName",     u"SciName",     &R::sciName,     Encoding::Text,        Missing::ReadFails},
        {u"name",        u"Name",        &R::name,        Encoding::Text,        Missing::ReadFails},
        {u"family",      u"Family",      &R::family,      Encoding::Text,        Missing::ReadFails},
        {u"size",        u"Size",        &R::size,        Encoding::Text,        Missing::ReadFails},
        {u"socialLevel", u"SocialLevel", &R::socialLevel, Encoding::Text,        Missing::ReadFails},
        {u"lifeSpan",    u"LifeSpan",    &R::lifeSpan,    Encoding::Text,        Missing::ReadFails},
        {u"tankLevel",   u"TankLevel",   &R::tankLevel,   Encoding::Text,        Missing::ReadFails},
        {u"diet",        u"Diet",        &R::diet,        Encoding::Text,        Missing::ReadFails},
        {u"breeding",    u"Breeding",    &R::breeding,    Encoding::Text,        Missing::ReadFails},
        {u"care",        u"Care",        &R::care,        Encoding::Text,        Missing::ReadFails},
        {u"notes",       u"Notes",       &R::notes,       Encoding::Text,        Missing::Keep},
        {u"salt",        u"Salt",        &R::salt,        Encoding::FloatText},
        {u"count",       u"Count",       &R::count,       Encoding::IntegerText},
        {u"reefSafe",    u"ReefSafe",    &R::reefSafe,    Encoding::Integer,     Missing::Keep, Copied::No},
        {u"itemImage",   u"FishImage",   &R::itemImage,   Encoding::Picture,     Missing::Keep},
    }};
};

template <>
struct FieldTable<ConditionData> {
    using R = ConditionData;
    static constexpr std::array<Field<R>, 18> fields{{
        {u"date", u"Date", &R::date, Encoding::DateText, Missing::Keep},
        parameterField(Parameter::Ph, &R::ph),
        parameterField(Parameter::Ammonia, &R::ammonia),
        parameterField(Parameter::Nitrate, &R::nitrate),
        parameterField(Parameter::Nitrite, &R::nitrite),
        parameterField(Parameter::GH, &R::gH),
        parameterField(Parameter::KH, &R::kH),
        parameterField(Parameter::Salt, &R::salt),
        parameterField(Parameter::Temp, &R::temp),
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

template <>
struct FieldTable<ExpenseData> {
    using R = ExpenseData;
    static constexpr std::array<Field<R>, 4> fields{{
        {u"date",    u"Date",    &R::date,    Encoding::DateText, Missing::Keep},
        {u"expense", u"Expense", &R::expense, Encoding::Text,     Missing::ReadFails},
        {u"amount",  u"Amount",  &R::amount,  Encoding::Number,   Missing::Keep},
        {u"type",    u"Type",    &R::type,    Encoding::Text,     Missing::ReadFails},
    }};
};

template <>
struct FieldTable<InventoryData> {
    using R = InventoryData;
    static constexpr std::array<Field<R>, 2> fields{{
        {u"item",  u"Item",  &R::item,  Encoding::Text, Missing::ReadFails},
        {u"count", u"Count", &R::count, Encoding::IntegerText},
    }};
};

template <>
struct FieldTable<NoteData> {
    using R = NoteData;
    static constexpr std::array<Field<R>, 2> fields{{
        {u"date", u"Date", &R::date, Encoding::DateText, Missing::Keep},
        {u"note", u"Note", &R::note, Encoding::Text,     Missing::ReadFails},
    }};
};

template <>
struct FieldTable<ScheduleData> {
    using R = ScheduleData;
    static constexpr std::array<Field<R>, 5> fields{{
        {u"date",           u"Date",           &R::date,             Encoding::DateText,  Missing::Keep},
        {u"activity",       u"Activity",       &R::activity,         Encoding::Text,      Missing::ReadFails},
        {u"complete",       u"Complete",       &R::m_complete,       Encoding::FlagText,  Missing::Zero, Copied::Yes, {}, &R::setComplete},
        {u"nextDate",       u"NextDate",       &R::nextDate,         Encoding::FloatText},
        {u"autoReschedule", u"AutoReschedule", &R::m_autoReschedule, Encoding::FlagText,  Missing::Zero, Copied::Yes, {}, &R::setAutoReschedule},
    }};
};

template <>
struct FieldTable<TankData> {
    using R = TankData;
    static constexpr std::array<Field<R>, 5> fields{{
        {u"name",           u"name",        &R::name,           Encoding::Text, Missing::Keep},
        {u"preferredValue", u"preferred",   &R::preferredValue, Encoding::Real},
        {u"warningOn",      u"warningOn",   &R::warningOn,      Encoding::Flag},
        {u"deviationOn",    u"deviationOn", &R::deviationOn,    Encoding::Flag},
        {u"deviationValue", u"deviation",   &R::deviationValue, Encoding::Real},
    }};
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
