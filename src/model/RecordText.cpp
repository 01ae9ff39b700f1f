// SPDX-License-Identifier: GPL-3.0-or-later

// The records as styled text: pairs of caption and value, in the orders of the tables below.

#include "base/text/AmountText.h"
#include "base/text/DateText.h"
#include "base/text/NumberText.h"
#include "model/ConditionData.h"
#include "model/ExpenseData.h"
#include "model/InventoryData.h"
#include "model/ItemData.h"
#include "model/NoteData.h"
#include "model/RecordDict.h"
#include "model/ScheduleData.h"
#include "model/StyledText.h"
#include "model/Tank.h"

namespace brinemark
{

namespace
{

constexpr QLatin1String newLine("\n");
constexpr QLatin1String sameLine("\t\t"); ///< the next pair follows on the same line
constexpr QLatin1String recordEnd("\n\n");

/// One pair of a record's text.
template <class R>
struct TextPair {
    TextKey captionKey;
    QString (*value)(const R &record);
    QLatin1String separator;
};

template <class R>
struct TextPairs;

/// A field as the tank file holds it, so that numbers read as they do there.
QString fileText(const Record &record, QStringView fileKey)
{
    const plist::Value value = fileValue(record, fileKey);
    const QString *held = value.string();
    return held ? *held : QString();
}

QString yesOrNo(bool value)
{
    return value ? text("YesLabel") : text("NoLabel");
}

// clang-format off

template <>
struct TextPairs<ItemData> {
    using R = ItemData;
    static constexpr auto pairs = std::to_array<TextPair<R>>({
        {"FishDataName"_key,      [](const R &r) { return fileText(r, u"Name"); },        newLine},
        {"FishDataSciName"_key,   [](const R &r) { return fileText(r, u"SciName"); },     newLine},
        {"FishDataFamily"_key,    [](const R &r) { return fileText(r, u"Family"); },      newLine},
        {"FishDataTraits"_key,    [](const R &r) { return fileText(r, u"SocialLevel"); }, newLine},
        {"FishDataDiet"_key,      [](const R &r) { return fileText(r, u"Diet"); },        newLine},
        {"FishDataTankLevel"_key, [](const R &r) { return fileText(r, u"TankLevel"); },   sameLine},
        {"FishDataSize"_key,      [](const R &r) { return fileText(r, u"Size"); },        newLine},
        {"FishDataCare"_key,      [](const R &r) { return fileText(r, u"Care"); },        newLine},
        {"FishDataBreeding"_key,  [](const R &r) { return fileText(r, u"Breeding"); },    sameLine},
        {"FishDataLifeSpan"_key,  [](const R &r) { return fileText(r, u"LifeSpan"); },    sameLine},
        {"FishDataCount"_key,     [](const R &r) { return fileText(r, u"Count"); },       newLine},
        {"FishDataTemp"_key,      [](const R &r) { return fileText(r, u"Temp"); },        newLine},
        {"FishDataPh"_key,        [](const R &r) { return fileText(r, u"ph"); },          sameLine},
        {"FishDataGh"_key,        [](const R &r) { return fileText(r, u"GHardness"); },   sameLine},
        {"FishDataKh"_key,        [](const R &r) { return fileText(r, u"KH"); },          newLine},
        {"FishDataSalt"_key,      [](const R &r) { return fileText(r, u"Salt"); },        sameLine},
        {"FishDataReef"_key,      [](const R &r) { return R::reefSafeStringFromCode(r.reefSafe); }, newLine},
        {"FishDataNote"_key,      [](const R &r) { return fileText(r, u"Notes"); },       recordEnd},
    });
};

template <>
struct TextPairs<ExpenseData> {
    using R = ExpenseData;
    static constexpr auto pairs = std::to_array<TextPair<R>>({
        {"ExpenseDataDate"_key,     [](const R &r) { return localeDateText(r.date); },                      newLine},
        {"ExpenseDataAmount"_key,   [](const R &r) { return formatObjectForLocale(r.amount.toVariant()); }, sameLine},
        {"ExpenseDataCategory"_key, [](const R &r) { return r.type; },                                      newLine},
        {"ExpenseDataExpense"_key,  [](const R &r) { return r.expense; },                                   newLine},
    });
};

template <>
struct TextPairs<InventoryData> {
    using R = InventoryData;
    static constexpr auto pairs = std::to_array<TextPair<R>>({
        {"InventoryDataCount"_key, [](const R &r) { return QString::number(r.count); }, newLine},
        {"InventoryDataItem"_key,  [](const R &r) { return r.item; },                   recordEnd},
    });
};

template <>
struct TextPairs<NoteData> {
    using R = NoteData;
    static constexpr auto pairs = std::to_array<TextPair<R>>({
        {"NoteDataDate"_key, [](const R &r) { return localeDateText(r.date); }, newLine},
        {"NoteDataNote"_key, [](const R &r) { return r.note; },                 recordEnd},
    });
};

template <>
struct TextPairs<ScheduleData> {
    using R = ScheduleData;
    static constexpr auto pairs = std::to_array<TextPair<R>>({
        {"ScheduleDataDate"_key,     [](const R &r) { return localeDateText(r.date); },       newLine},
        {"ScheduleDataComplete"_key, [](const R &r) { return yesOrNo(r.complete()); },        sameLine},
        {"ScheduleDataAuto"_key,     [](const R &r) { return yesOrNo(r.autoReschedule()); },  newLine},
        {"ScheduleDataActivity"_key, [](const R &r) { return r.activity; },                   recordEnd},
    });
};

// clang-format on

void appendPair(StyledText &target, TextKey captionKey, const QString &value, QLatin1String separator)
{
    target.append(TextStyle::Caption, text(captionKey));
    target.append(TextStyle::Value, value + separator);
}

template <class R>
StyledText textOfPairs(const R &record)
{
    StyledText result;
    for (const TextPair<R> &pair : TextPairs<R>::pairs)
        appendPair(result, pair.captionKey, pair.value(record), pair.separator);
    return result;
}

} // namespace

StyledText ItemData::itemDataAttributedString() const
{
    return textOfPairs(*this);
}

StyledText ExpenseData::expenseDataAttributedString() const
{
    return textOfPairs(*this);
}

StyledText InventoryData::inventoryDataAttributedString() const
{
    return textOfPairs(*this);
}

StyledText NoteData::noteDataAttributedString() const
{
    return textOfPairs(*this);
}

StyledText ScheduleData::scheduleDataAttributedString() const
{
    return textOfPairs(*this);
}

StyledText ConditionData::conditionDataAttributedString() const
{
    StyledText result;
    if (tank) {
        for (const ColumnInfo &column : tank->condition()->columnInfoArray()) {
            if (column.identifier == u"date")
                appendPair(result, "ConditionDataDate", localeDateText(date), sameLine);
            else if (const auto parameter = parameterFromIdentifier(column.identifier))
                buildStringWithCaption(text(traitsOf(*parameter).captionKey),
                                       fileText(*this, traitsOf(*parameter).testFileKey), result);
        }
    }
    result.append(TextStyle::Value, recordEnd);
    return result;
}

void ConditionData::buildStringWithCaption(const QString &caption, const QString &value, StyledText &target)
{
    target.append(TextStyle::Caption, caption);
    target.append(TextStyle::Value, (leadingNumber(value) < 0 ? text("NotTested") : value) + sameLine);
}

} // namespace brinemark
