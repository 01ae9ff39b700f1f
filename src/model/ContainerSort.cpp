// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ContainerSort.h"

#include "base/text/NumberText.h"
#include "model/PlistField.h"
#include "model/RecordFields.h"

#include <algorithm>
#include <limits>

namespace brinemark
{

namespace
{

/// Sorts by a key that is worked out once a record.
template <class R, class KeyOf>
void sortBy(std::vector<std::shared_ptr<R>> &list, bool ascending, KeyOf keyOf)
{
    using Key = std::decay_t<decltype(keyOf(*list.front()))>;
    struct Place {
        Key key;
        quint32 index;
    };
    std::vector<Place> places;
    places.reserve(list.size());
    for (const std::shared_ptr<R> &record : list)
        places.push_back({keyOf(*record), quint32(places.size())});

    const auto before = [ascending](const Place &a, const Place &b) {
        if (ascending ? a.key < b.key : b.key < a.key)
            return true;
        if (ascending ? b.key < a.key : a.key < b.key)
            return false;
        return a.index < b.index;
    };
    if (std::is_sorted(places.begin(), places.end(), before))
        return;
    std::sort(places.begin(), places.end(), before);

    std::vector<std::shared_ptr<R>> sorted;
    sorted.reserve(list.size());
    for (const Place &place : places)
        sorted.push_back(std::move(list[place.index]));
    list = std::move(sorted);
}

template <class R>
void sortByDate(std::vector<std::shared_ptr<R>> &list, bool ascending)
{
    sortBy(list, ascending, [](const R &record) {
        return record.date.isValid() ? record.date.toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
    });
}

float floatOf(float member)
{
    return member;
}
float floatOf(qint32 member)
{
    return float(member);
}
float floatOf(bool member)
{
    return member ? 1 : 0;
}
float floatOf(const QString &member)
{
    return leadingFloat(member);
}
float floatOf(const Amount &member)
{
    return plistfield::singlePrecision(member.toDouble());
}
template <class Other>
float floatOf(const Other &)
{
    return 0;
}

template <class R>
float floatOf(const R &record, const Field<R> &field)
{
    return std::visit([&](auto member) { return floatOf(record.*member); }, field.member);
}

/// By the named text, case-insensitively; only texts have such an order.
template <class R>
void sortByText(std::vector<std::shared_ptr<R>> &list, const QString &identifier, bool ascending)
{
    const Field<R> *field = fieldForKey<R>(identifier);
    if (const auto *member = field ? std::get_if<QString R::*>(&field->member) : nullptr)
        sortBy(list, ascending, [&](const R &record) { return (record.**member).toCaseFolded(); });
}

/// By the named field as a float, seen through `view`.
template <class R, class View>
void sortByNumber(std::vector<std::shared_ptr<R>> &list, const QString &identifier, bool ascending, View view)
{
    if (const Field<R> *field = fieldForKey<R>(identifier))
        sortBy(list, ascending, [&](const R &record) { return view(floatOf(record, *field)); });
}

} // namespace

void sortRecordList(std::vector<std::shared_ptr<ConditionData>> &list, const QString &identifier, bool ascending)
{
    if (identifier == u"date")
        sortByDate(list, ascending);
    else
        sortByNumber(list, identifier, ascending, [](float value) { return value; });
}

void sortRecordList(std::vector<std::shared_ptr<ExpenseData>> &list, const QString &identifier, bool ascending)
{
    if (identifier == u"date")
        sortByDate(list, ascending);
    else if (identifier == u"amount")
        sortBy(list, ascending, [](const ExpenseData &record) { return record.amount.toDouble(); });
    else
        sortByText(list, identifier, ascending);
}

void sortRecordList(std::vector<std::shared_ptr<InventoryData>> &list, const QString &identifier, bool ascending)
{
    if (identifier == u"item")
        sortByText(list, identifier, ascending);
    else
        sortByNumber(list, identifier, ascending, [](float value) { return plistfield::wholeNumber(double(value)); });
}

void sortRecordList(std::vector<std::shared_ptr<NoteData>> &list, const QString &identifier, bool ascending)
{
    if (identifier == u"date")
        sortByDate(list, ascending);
    else
        sortByText(list, identifier, ascending);
}

void sortRecordList(std::vector<std::shared_ptr<ScheduleData>> &list, const QString &identifier, bool ascending)
{
    // The next due date's column sorts by the due date too.
    if (identifier == u"date" || identifier == u"next")
        sortByDate(list, ascending);
    else if (identifier == u"activity")
        sortByText(list, identifier, ascending);
    else
        sortByNumber(list, identifier, ascending, [](float value) { return value != 0; });
}

} // namespace brinemark
