// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/PropertyListSettings.h"

#include "base/Log.h"
#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QIODevice>

namespace brinemark
{

namespace
{

QString freeNameBeside(const QString &path)
{
    const QFileInfo info(path);
    const QString start = info.path() + u'/' + info.completeBaseName() + QStringLiteral("-damaged-");
    for (int number = 1;; ++number) {
        QString name = start + QString::number(number) + u'.' + info.suffix();
        if (!QFile::exists(name))
            return name;
    }
}

/// Renames a file that cannot be read. Copies it instead on systems that cannot rename an open file.
void setAside(const QString &path, const QString &reason)
{
    const QString aside = freeNameBeside(path);
    const bool kept = QFile::rename(path, aside) || QFile::copy(path, aside);
    qCWarning(logPreferences).noquote() << "The preferences could not be read:" << reason
                                        << (kept ? "They are kept as " + aside
                                                 : QStringLiteral("They could not be kept."));
}

bool readSettings(QIODevice &device, QSettings::SettingsMap &map)
{
    const plist::ReadResult result = plist::readXml(device.readAll());
    if (!result || !result.value.dict()) {
        if (const auto *file = qobject_cast<QFile *>(&device))
            setAside(file->fileName(), result ? QStringLiteral("not a dictionary") : result.error);
        return true;
    }
    for (const auto &[key, value] : *result.value.dict())
        map.insert(key, variantOf(value));
    return true;
}

bool writeSettings(QIODevice &device, const QSettings::SettingsMap &map)
{
    plist::Dict dict;
    for (auto it = map.begin(); it != map.end(); ++it)
        dict.insert(it.key(), propertyListValue(it.value()));
    const QByteArray bytes = plist::writeXml(dict);
    return device.write(bytes) == bytes.size();
}

} // namespace

QSettings::Format propertyListSettingsFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("plist"), readSettings, writeSettings, Qt::CaseSensitive);
    return format;
}

plist::Value propertyListValue(const QVariant &variant)
{
    switch (variant.typeId()) {
    case QMetaType::QString:
        return variant.toString();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return variant.toLongLong();
    case QMetaType::Float:
    case QMetaType::Double:
        return variant.toDouble();
    case QMetaType::Bool:
        return variant.toBool();
    case QMetaType::QDateTime:
        return variant.toDateTime();
    case QMetaType::QByteArray:
        return variant.toByteArray();
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        plist::Array array;
        for (const QVariant &element : variant.toList())
            array.push_back(propertyListValue(element));
        return array;
    }
    case QMetaType::QVariantMap: {
        const QVariantMap map = variant.toMap();
        plist::Dict dict;
        for (auto it = map.begin(); it != map.end(); ++it)
            dict.insert(it.key(), propertyListValue(it.value()));
        return dict;
    }
    default:
        return {};
    }
}

QVariant variantOf(const plist::Value &value)
{
    if (const auto *string = value.string())
        return *string;
    if (const auto *integer = value.integer())
        return *integer;
    if (const auto *real = value.real())
        return *real;
    if (const auto *flag = value.flag())
        return *flag;
    if (const auto *date = value.date())
        return *date;
    if (const auto *data = value.data())
        return *data;
    if (const auto *array = value.array()) {
        QVariantList list;
        for (const plist::Value &element : *array)
            list.append(variantOf(element));
        return list;
    }
    if (const auto *dict = value.dict()) {
        QVariantMap map;
        for (const auto &[key, element] : *dict)
            map.insert(key, variantOf(element));
        return map;
    }
    return {};
}

} // namespace brinemark
