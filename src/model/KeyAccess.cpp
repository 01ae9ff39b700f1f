// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/KeyAccess.h"

#include "base/text/DateText.h"
#include "base/text/NumberText.h"
#include "model/PlistField.h"
#include "model/RecordFields.h"

namespace brinemark
{

namespace
{

QVariant given(float member)
{
    return member;
}
QVariant given(qint32 member)
{
    return member;
}
QVariant given(bool member)
{
    return member;
}
QVariant given(const QString &member)
{
    return member;
}
QVariant given(const QDateTime &member)
{
    return member.isNull() ? QVariant() : QVariant(member);
}
QVariant given(const Amount &member)
{
    return member.toVariant();
}
QVariant given(const ItemImage &member)
{
    return member.isNone() ? QVariant() : QVariant::fromValue(member.image());
}

double numberOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QString ? leadingNumber(value.toString()) : value.toDouble();
}

void convert(const QVariant &value, float &result)
{
    result = plistfield::singlePrecision(numberOf(value));
}
void convert(const QVariant &value, qint32 &result)
{
    result = plistfield::wholeNumber(numberOf(value));
}
void convert(const QVariant &value, bool &result)
{
    result = numberOf(value) != 0;
}
void convert(const QVariant &value, QString &result)
{
    const bool isFloat = value.typeId() == QMetaType::Float;
    result = isFloat ? floatText(value.toFloat()) : value.toString();
}
void convert(const QVariant &value, QDateTime &result)
{
    result = value.typeId() == QMetaType::QString ? dateFromFileText(value.toString()) : value.toDateTime();
}
void convert(const QVariant &value, Amount &result)
{
    result = Amount::fromVariant(value);
}
void convert(const QVariant &value, ItemImage &result)
{
    result = value.typeId() == QMetaType::QByteArray ? ItemImage(value.toByteArray())
                                                     : ItemImage::fromImage(value.value<QImage>());
}

/// What an invalid variant stores in a number or flag of each record type; none where it is refused.
template <class R>
constexpr std::optional<int> numberForInvalid = std::nullopt;
template <>
constexpr std::optional<int> numberForInvalid<ConditionData> = 0;
template <>
constexpr std::optional<int> numberForInvalid<InventoryData> = 1;

template <class R, class T>
bool setField(R &record, const Field<R> &field, T R::*member, const QVariant &value)
{
    T converted{};
    if (value.isValid()) {
        convert(value, converted);
    } else if constexpr (std::is_arithmetic_v<T>) {
        if (!numberForInvalid<R>)
            return false;
        converted = T(*numberForInvalid<R>);
    }
    if constexpr (std::is_same_v<T, bool>) {
        if (field.setter) {
            (record.*field.setter)(converted);
            return true;
        }
    }
    record.*member = converted;
    return true;
}

} // namespace

QVariant valueForKey(const Record &record, QStringView key)
{
    return visitRecord(record, [&](const auto &typed) -> QVariant {
        using R = std::remove_cvref_t<decltype(typed)>;
        const Field<R> *field = fieldForKey<R>(key);
        return field ? std::visit([&](auto member) { return given(typed.*member); }, field->member) : QVariant();
    });
}

bool setValueForKey(Record &record, QStringView key, const QVariant &value)
{
    return visitRecord(record, [&](auto &typed) -> bool {
        using R = std::remove_cvref_t<decltype(typed)>;
        const Field<R> *field = fieldForKey<R>(key);
        return field && std::visit([&](auto member) { return setField(typed, *field, member, value); }, field->member);
    });
}

} // namespace brinemark
