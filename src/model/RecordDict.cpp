// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/RecordDict.h"

#include "base/text/DateText.h"
#include "base/text/NumberText.h"
#include "model/ContainerKind.h"
#include "model/LivestockData.h"
#include "model/PlistField.h"
#include "model/Tank.h"
#include "model/TankReadError.h"

#include <cmath>

namespace brinemark
{

namespace
{

const auto parentKey = QStringLiteral("Parent");

/// The indices of a field table, ordered by file key. Dictionaries are ordered by key too, so reading and writing a
/// record walk both in parallel instead of searching for each key.
template <class R>
constexpr auto fileOrder = [] {
    constexpr auto &fields = FieldTable<R>::fields;
    std::array<std::size_t, fields.size()> order{};
    for (std::size_t i = 0; i < order.size(); ++i) {
        std::size_t place = i;
        for (; place > 0 && characters(fields[i].fileKey) < characters(fields[order[place - 1]].fileKey); --place)
            order[place] = order[place - 1];
        order[place] = i;
    }
    return order;
}();

/// The file key as a string that refers to the literal's characters, so that copies need neither memory nor reference
/// counting.
template <class R>
const QString &fileKeyString(std::size_t field)
{
    static const auto keys = [] {
        std::array<QString, FieldTable<R>::fields.size()> strings;
        for (std::size_t i = 0; i < strings.size(); ++i) {
            const QStringView key = FieldTable<R>::fields[i].fileKey;
            strings[i] = QString::fromRawData(key.data(), key.size());
        }
        return strings;
    }();
    return keys[field];
}

// take(): reads a value into a member, by the member's type. The encoding matters for writing only: a number reads the
// same in every encoding.
void take(float &member, const plist::Value &value, QStringView key)
{
    member = plistfield::floatOf(value, key);
}
void take(qint32 &member, const plist::Value &value, QStringView key)
{
    member = plistfield::integerOf(value, key);
}
void take(bool &member, const plist::Value &value, QStringView key)
{
    member = plistfield::flagOf(value, key);
}
void take(QString &member, const plist::Value &value, QStringView key)
{
    member = plistfield::textOf(value, key);
}
void take(QDateTime &member, const plist::Value &value, QStringView key)
{
    member = plistfield::dateOf(value, key);
}
void take(Amount &member, const plist::Value &value, QStringView key)
{
    member = plistfield::amountOf(value, key);
}
void take(ItemImage &member, const plist::Value &value, QStringView key)
{
    member = ItemImage(plistfield::dataOf(value, key));
}

template <class R>
void readFields(R &record, const plist::Dict &dict)
{
    auto entry = dict.begin();
    const auto end = dict.end();
    QStringView gate;
    bool gateOpen = true;
    for (const std::size_t place : fileOrder<R>) {
        const Field<R> &field = FieldTable<R>::fields[place];
        while (entry != end && entry->first < field.fileKey)
            ++entry;
        bool found = entry != end && entry->first == field.fileKey;
        if (!field.onlyWith.isEmpty()) {
            if (field.onlyWith.data() != gate.data()) {
                gate = field.onlyWith;
                gateOpen = dict.contains(gate);
            }
            found = found && gateOpen;
        }
        if (found)
            std::visit([&](auto member) { take(record.*member, entry->second, field.fileKey); }, field.member);
        else if (field.missing == Missing::Zero)
            std::visit([&](auto member) { record.*member = {}; }, field.member);
        else if (field.missing == Missing::ReadFails)
            throw TankReadError(QStringLiteral("\"%1\" is missing").arg(field.fileKey));
    }
}

// give(): the file value of a member, by its type and encoding.
plist::Value give(float member, Encoding encoding)
{
    if (encoding == Encoding::Real)
        return plistfield::neatDouble(member);
    return floatText(encoding == Encoding::WholeText ? std::trunc(member) : member);
}
plist::Value give(qint32 member, Encoding encoding)
{
    return encoding == Encoding::Integer ? plist::Value(member) : plist::Value(plistfield::integerText(member));
}
plist::Value give(bool member, Encoding encoding)
{
    return encoding == Encoding::Flag ? plist::Value(member) : plist::Value(plistfield::flagText(member));
}
plist::Value give(const QString &member, Encoding)
{
    return member;
}
plist::Value give(const QDateTime &member, Encoding)
{
    const QString date = fileDateText(member);
    return date.isEmpty() ? plist::Value() : plist::Value(date);
}
plist::Value give(const Amount &member, Encoding)
{
    if (const qint64 *integer = member.integer())
        return *integer;
    return member.real() ? plist::Value(*member.real()) : plist::Value();
}
plist::Value give(const ItemImage &member, Encoding)
{
    return member.isNone() ? plist::Value() : plist::Value(member.encoded());
}

template <class R>
plist::Value valueOf(const R &record, const Field<R> &field)
{
    // A target name is null when the file had none, and is not written. Other texts are written even when empty,
    // because reading requires them.
    if constexpr (std::is_same_v<R, TankData>) {
        if (const auto *member = std::get_if<QString R::*>(&field.member); member && (record.**member).isNull())
            return {};
    }
    return std::visit([&](auto member) { return give(record.*member, field.encoding); }, field.member);
}

template <class R>
plist::Dict writeFields(const R &record)
{
    std::vector<plist::Dict::Entry> entries;
    entries.reserve(FieldTable<R>::fields.size());
    for (const std::size_t place : fileOrder<R>) {
        plist::Value value = valueOf(record, FieldTable<R>::fields[place]);
        if (!value.isNone())
            entries.emplace_back(fileKeyString<R>(place), std::move(value));
    }
    return plist::Dict(std::move(entries));
}

} // namespace

void readRecord(ItemData &record, const plist::Dict &dict)
{
    readFields(record, dict);
}
void readRecord(ConditionData &record, const plist::Dict &dict)
{
    readFields(record, dict);
}
void readRecord(ExpenseData &record, const plist::Dict &dict)
{
    readFields(record, dict);
}
void readRecord(InventoryData &record, const plist::Dict &dict)
{
    readFields(record, dict);
}
void readRecord(NoteData &record, const plist::Dict &dict)
{
    readFields(record, dict);
}
void readRecord(TankData &record, const plist::Dict &dict)
{
    readFields(record, dict);
}
void readRecord(ScheduleData &record, const plist::Dict &dict)
{
    readFields(record, dict);
    if (!record.autoReschedule())
        record.nextDate = 0;
}

std::shared_ptr<Record> recordFromDict(ContainerKind kind, const plist::Dict &dict, Tank *parent)
{
    const auto built = [&](auto record) -> std::shared_ptr<Record> {
        record->tank = parent;
        readRecord(*record, dict);
        return record;
    };
    switch (kind) {
    case ContainerKind::Fish:
        return built(std::make_shared<FishData>(Blank{}));
    case ContainerKind::Plant:
        return built(std::make_shared<PlantData>(Blank{}));
    case ContainerKind::Invert:
        return built(std::make_shared<InvertData>(Blank{}));
    case ContainerKind::Coral:
        return built(std::make_shared<CoralData>(Blank{}));
    case ContainerKind::Condition:
        return built(std::make_shared<ConditionData>(Blank{}));
    case ContainerKind::Schedule:
        return built(std::make_shared<ScheduleData>(Blank{}));
    case ContainerKind::Inventory:
        return built(std::make_shared<InventoryData>(Blank{}));
    case ContainerKind::Expense:
        return built(std::make_shared<ExpenseData>(Blank{}));
    case ContainerKind::Note:
        break;
    }
    return built(std::make_shared<NoteData>(Blank{}));
}

plist::Dict recordDict(const Record &record)
{
    plist::Dict dict = visitRecord(record, [](const auto &typed) { return writeFields(typed); });
    if (record.recordType() == RecordType::Item && record.tank)
        dict.insert(parentKey, record.tank->name);
    return dict;
}

plist::Value fileValue(const Record &record, QStringView fileKey)
{
    return visitRecord(record, [&](const auto &typed) -> plist::Value {
        using R = std::remove_cvref_t<decltype(typed)>;
        for (const Field<R> &field : FieldTable<R>::fields) {
            if (field.fileKey == fileKey)
                return valueOf(typed, field);
        }
        return {};
    });
}

} // namespace brinemark
