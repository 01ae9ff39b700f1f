#include "livestock/ProfileFields.h"

#include "base/text/NumberText.h"
#include "model/ItemData.h"
#include "model/KeyAccess.h"

#include <QLocale>

namespace brinemark
{

QString profileText(const ItemData &item, const ProfileField &field)
{
    const QVariant value = valueForKey(item, field.key);
    switch (field.kind) {
    case ProfileKind::Number: {
        QLocale locale;
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        return locale.toString(value.toDouble(), 'g', 7);
    }
    case ProfileKind::Count:
        return QString::number(value.toInt());
    case ProfileKind::ReefSafe:
        return ItemData::reefSafeStringFromCode(value.toInt());
    case ProfileKind::Text:
        break;
    }
    return value.toString();
}

double numberOfInput(const QString &typed)
{
    bool ok = false;
    const double number = QLocale().toDouble(typed.trimmed(), &ok);
    return ok ? number : leadingNumber(typed);
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
