// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileCollection.h"

#include "base/Log.h"
#include "base/plist/XmlReader.h"
#include "calc/UnitConversion.h"
#include "livestock/LivestockGroup.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>

namespace brinemark
{

namespace
{

QString &profileFolder()
{
    static QString folder = QStringLiteral(":/profiles");
    return folder;
}

/// "22 - 26 °C" as "72 - 79 °F"; any other text as it is.
QString temperatureInFahrenheit(const QString &metric)
{
    static const QRegularExpression range(QStringLiteral("^([0-9.]+) - ([0-9.]+) °C$"));
    const auto match = range.match(metric);
    const auto degrees = [&](int part) {
        constexpr Conversion fahrenheit = conversion::temperature[1];
        return QString::number(qRound(fahrenheit(match.capturedView(part).toFloat())));
    };
    return match.hasMatch() ? QStringLiteral("%1 - %2 °F").arg(degrees(1), degrees(2)) : metric;
}

/// "3.5 cm" as "1.4 in"; any other text as it is.
QString sizeInInches(const QString &metric)
{
    constexpr Conversion toInches = conversion::length[1];
    static const QRegularExpression length(QStringLiteral("^([0-9.]+) cm$"));
    const auto match = length.match(metric);
    if (!match.hasMatch())
        return metric;
    const double inches = toInches(match.capturedView(1).toFloat());
    return QStringLiteral("%1 in").arg(QString::number(inches, 'f', inches < 10 ? 1 : 0));
}

SpeciesProfile inUserUnits(SpeciesProfile profile)
{
    if (QLocale().measurementSystem() != QLocale::ImperialUSSystem)
        return profile;
    const auto convert = [&](const QString &key, QString (*converted)(const QString &)) {
        if (const QString value = profileValue(profile, key); !value.isEmpty())
            profile.insert(key, converted(value));
    };
    convert(QStringLiteral("Temp"), &temperatureInFahrenheit);
    convert(QStringLiteral("Size"), &sizeInInches);
    return profile;
}

} // namespace

QString profileValue(const SpeciesProfile &profile, QStringView key)
{
    const plist::Value *value = profile.find(key);
    const QString *held = value ? value->string() : nullptr;
    return held ? *held : QString();
}

bool profileMatches(const SpeciesProfile &profile, QStringView field, const QString &text)
{
    return profileValue(profile, field).contains(text, Qt::CaseInsensitive);
}

std::shared_ptr<const ProfileCollection> ProfileCollection::load(ItemContext context)
{
    const QString path = QStringLiteral("%1/%2.plist")
                             .arg(profileFolder(), QLatin1String(livestockGroupForContext(context).profilesName));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(logFile).noquote() << "cannot open" << path << file.errorString();
        return nullptr;
    }
    const plist::ReadResult read = plist::readXml(file.readAll());
    const plist::Dict *root = read.value.dict();
    if (!root) {
        qCWarning(logFile).noquote() << "cannot read" << path << read.error;
        return nullptr;
    }
    std::shared_ptr<ProfileCollection> collection(new ProfileCollection);
    collection->m_profiles.reserve(root->size());
    for (const auto &[key, value] : *root) {
        if (const plist::Dict *profile = value.dict())
            collection->m_profiles.push_back(inUserUnits(*profile));
    }
    return collection;
}

void ProfileCollection::setFolder(const QString &folder)
{
    profileFolder() = folder;
}

} // namespace brinemark
