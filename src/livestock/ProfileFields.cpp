// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileFields.h"

#include "base/text/NumberText.h"
#include "model/ItemData.h"
#include "model/KeyAccess.h"

#include <QRegularExpression>

namespace brinemark
{

namespace
{

/// A line of the message with a profile.
struct SubmissionLine {
    const char *label;
    QStringView key;
};
constexpr auto submissionLines = std::to_array<SubmissionLine>({
    {"Name", u"name"},
    {"Scientific Name", u"sciName"},
    {"Family", u"family"},
    {"Size", u"size"},
    {"Traits", u"socialLevel"},
    {"Life Span", u"lifeSpan"},
    {"Tank Level", u"tankLevel"},
    {"Diet", u"diet"},
    {"Breeding", u"breeding"},
    {"Care", u"care"},
    {"pH", u"ph"},
    {"GH", u"gHardness"},
    {"KH", u"KH"},
    {"Salinity", u"salt"},
    {"Temp", u"temp"},
    {"Reef Safe", u"reefSafe"},
});

} // namespace

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
    case ProfileKind::TankLevel:
    case ProfileKind::Breeding:
    case ProfileKind::Care:
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

double profileNumber(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*([0-9]+(?:\\.[0-9]+)?)(?:\\s*[-\u2013]\\s*([0-9]+(?:\\.[0-9]+)?))?\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    const double first = match.capturedView(1).toDouble();
    return match.capturedLength(2) > 0 ? (first + match.capturedView(2).toDouble()) / 2 : first;
}

QString submissionBody(const std::function<QString(QStringView)> &shown)
{
    QString body = QStringLiteral("Enter Comments Here:\r\r\r\r\r");
    for (const SubmissionLine &line : submissionLines)
        body += QLatin1String(line.label) + QLatin1String(": ") + shown(line.key) + QLatin1Char('\r');
    return body;
}

} // namespace brinemark
