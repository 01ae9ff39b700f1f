// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ContainerSort.h"

#include "model/RecordFields.h"

#include <algorithm>
#include <limits>

namespace brinemark
{

namespace
{

/// A record's sort key, and its place in the unsorted list.
template <class Key>
struct SortPlace {
    Key key;
    quint32 index;
};

/// Sorts the places; those with equal keys keep their order in both directions. Returns false if all were in order.
template <class Key>
bool sortPlaces(std::vector<SortPlace<Key>> &places, bool ascending)
{
    const auto before = [ascending](const SortPlace<Key> &a, const SortPlace<Key> &b) {
        if (ascending ? a.key < b.key : b.key < a.key)
            return true;
        if (ascending ? b.key < a.key : a.key < b.key)
            return false;
        return a.index < b.index;
    };
    if (std::is_sorted(places.begin(), places.end(), before))
        return false;
    std::sort(places.begin(), places.end(), before);
    return true;
}

/// Sorts by a key that is computed once for each record.
template <class R, class KeyOf>
void sortBy(std::vector<std::shared_ptr<R>> &list, bool ascending, KeyOf keyOf)
{
    using Key = std::decay_t<decltype(keyOf(*list.front()))>;
    std::vector<SortPlace<Key>> places;
    places.reserve(list.size());
    for (const std::shared_ptr<R> &record : list)
        places.push_back({keyOf(*record), quint32(places.size())});
    if (!sortPlaces(places, ascending))
        return;

    std::vector<std::shared_ptr<R>> sorted;
    sorted.reserve(list.size());
    for (const SortPlace<Key> &place : places)
        sorted.push_back(std::move(list[place.index]));
    list = std::move(sorted);
}

qint64 dateSortKey(const QDateTime &date)
{
    return date.isValid() ? date.toMSecsSinceEpoch() : std::numeric_limits<qint64>::min();
}

double numberSortKey(float number)
{
    return double(number);
}
double numberSortKey(qint32 number)
{
    return double(float(number)); // compared in single precision, as the floats are
}
double numberSortKey(bool flag)
{
    return flag ? 1 : 0;
}
double numberSortKey(const Amount &amount)
{
    return amount.toDouble();
}
template <class Other>
double numberSortKey(const Other &)
{
    return 0; // not reached: `sortKindFitsType` allows no other type as a number or flag
}

template <class R>
double numberSortKey(const R &record, const Field<R> &field)
{
    return std::visit([&](auto member) { return numberSortKey(record.*member); }, field.member);
}

/// Whether each field of a journal's record has a sort kind that fits its type.
template <class R>
consteval bool fieldsCanBeSorted()
{
    return std::all_of(FieldTable<R>::fields.begin(), FieldTable<R>::fields.end(), [](const Field<R> &field) {
        return field.sortKind != SortKind::None && sortKindFitsType(field);
    });
}

/// Sorts by the field of this key; does nothing for an unknown key.
template <class R>
void sortByField(std::vector<std::shared_ptr<R>> &list, QStringView key, bool ascending)
{
    static_assert(fieldsCanBeSorted<R>(), "a field of this record has no sort kind, or one that does not fit its type");
    const Field<R> *field = fieldForKey<R>(key);
    if (!field)
        return;
    switch (field->sortKind) {
    case SortKind::None:
        return;
    case SortKind::Date:
        return sortBy(list, ascending, [member = std::get<QDateTime R::*>(field->member)](const R &record) {
            return dateSortKey(record.*member);
        });
    case SortKind::Number:
        return sortBy(list, ascending, [&](const R &record) { return numberSortKey(record, *field); });
    case SortKind::Text:
        return sortBy(list, ascending, [member = std::get<QString R::*>(field->member)](const R &record) {
            return (record.*member).toCaseFolded();
        });
    case SortKind::Flag:
        return sortBy(list, ascending, [&](const R &record) { return numberSortKey(record, *field) != 0 ? 1.0 : 0.0; });
    }
}

} // namespace

void sortRecordList(std::vector<std::shared_ptr<ConditionData>> &list, const QString &identifier, bool ascending)
{
    sortByField(list, identifier, ascending);
}

void sortRecordList(std::vector<std::shared_ptr<ExpenseData>> &list, const QString &identifier, bool ascending)
{
    sortByField(list, identifier, ascending);
}

void sortRecordList(std::vector<std::shared_ptr<InventoryData>> &list, const QString &identifier, bool ascending)
{
    sortByField(list, identifier, ascending);
}

void sortRecordList(std::vector<std::shared_ptr<NoteData>> &list, const QString &identifier, bool ascending)
{
    sortByField(list, identifier, ascending);
}

void sortRecordList(std::vector<std::shared_ptr<ScheduleData>> &list, const QString &identifier, bool ascending)
{
    // The column of the next date is sorted by the due date too.
    const bool isNextDate = identifier == u"next";
    sortByField(list, isNextDate ? QStringView(u"date") : QStringView(identifier), ascending);
}

} // namespace brinemark
