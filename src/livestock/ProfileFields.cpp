// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileFields.h"

#include "base/text/NumberText.h"
#include "model/ItemData.h"
#include "model/KeyAccess.h"

namespace brinemark
{

QString profileText(const ItemData &item, const ProfileField &field)
{
    const QVariant value = valueForKey(item, field.key);
    switch (field.kind) {
    case ProfileKind::Number:
        return shownNumber(value.toDouble(), 7);
    case ProfileKind::Count:
        return QString::number(value.toInt());
    case ProfileKind::ReefSafe:
        return ItemData::reefSafeStringFromCode(value.toInt());
    case ProfileKind::Text:
        break;
    }
    return value.toString();
}

bool isUnspecified(const QString &stored)
{
    return stored == QLatin1String("(unspecified)") || stored == text("Unspecified");
}

QString compareUnspecified(const QString &typed)
{
    return typed.isEmpty() ? text("Unspecified") : typed;
}

} // namespace brinemark
