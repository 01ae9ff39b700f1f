// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Preferences.h"

#include "base/PropertyListSettings.h"

#include <QSettings>
#include <QStandardPaths>

#include <cmath>
#include <limits>
#include <utility>

namespace brinemark
{

namespace
{

bool isText(const QVariant &stored)
{
    return stored.typeId() == QMetaType::QString;
}

/// The finite number in a stored number, flag (0 or 1) or text; none for any other value.
std::optional<double> numberOf(const QVariant &stored)
{
    switch (stored.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
    case QMetaType::QString: {
        bool ok = false;
        const double number = isText(stored) ? stored.toString().trimmed().toDouble(&ok) : stored.toDouble();
        return (ok || !isText(stored)) && std::isfinite(number) ? std::optional(number) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

template <class Whole>
std::optional<Whole> wholeNumberOf(const QVariant &stored)
{
    if (stored.typeId() == QMetaType::LongLong || stored.typeId() == QMetaType::Int)
        return std::in_range<Whole>(stored.toLongLong()) ? std::optional(Whole(stored.toLongLong())) : std::nullopt;
    const auto number = numberOf(stored);
    // For 64 bits the limit is 2^63, which a double holds exactly. The largest number, 2^63 - 1, would be rounded up to
    // it.
    const double beyond = std::ldexp(1.0, std::numeric_limits<Whole>::digits);
    if (!number || *number < -beyond || *number >= beyond)
        return std::nullopt;
    return Whole(*number);
}

} // namespace

QDateTime distantPast()
{
    return QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);
}

Preferences &Preferences::shared()
{
    static Preferences preferences(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                   QStringLiteral("/Brinemark/Brinemark.plist"));
    return preferences;
}

Preferences::Preferences(const QString &path)
    : m_path(path)
    , m_settings(std::make_unique<QSettings>(path, propertyListSettingsFormat()))
{
}

Preferences::~Preferences() = default;

QVariant Preferences::variant(const QString &name) const
{
    return m_settings->value(name);
}

void Preferences::setVariant(const QString &name, const QVariant &value)
{
    if (!value.isValid()) {
        remove(name);
        return;
    }
    if (m_readOnly)
        return;
    m_settings->setValue(name, value);
    checkWritingSoon();
}

bool Preferences::contains(const QString &name) const
{
    return m_settings->contains(name);
}

void Preferences::remove(const QString &name)
{
    // QSettings::remove() with an empty name removes every value.
    if (name.isEmpty() || m_readOnly)
        return;
    m_settings->remove(name);
    checkWritingSoon();
}

QStringList Preferences::namesWithPrefix(const QString &prefix) const
{
    QStringList names = m_settings->allKeys();
    names.removeIf([&](const QString &name) { return !name.startsWith(prefix); });
    return names;
}

bool Preferences::flush()
{
    // A QSettings object keeps its error status, so a retry needs a new one. Objects of the same file share the values
    // that are not yet written.
    if (m_settings->status() != QSettings::NoError)
        m_settings = std::make_unique<QSettings>(m_path, propertyListSettingsFormat());
    m_settings->sync();
    checkWriting();
    return m_settings->status() == QSettings::NoError;
}

void Preferences::checkWritingSoon()
{
    // QSettings has posted an event, in which it writes the change; this call is posted after it.
    QMetaObject::invokeMethod(
        &m_checks, [this] { checkWriting(); }, Qt::QueuedConnection);
}

void Preferences::checkWriting()
{
    if (m_settings->status() == QSettings::NoError || m_writeFailureTold || !m_tellWriteFailure)
        return;
    m_writeFailureTold = true;
    m_tellWriteFailure();
}

template <>
std::optional<bool> Preferences::convert<bool>(const QVariant &stored)
{
    if (isText(stored)) {
        const QString word = stored.toString().trimmed().toLower();
        if (word == u"yes" || word == u"true")
            return true;
        if (word == u"no" || word == u"false")
            return false;
    }
    const auto number = numberOf(stored);
    return number ? std::optional(*number != 0.0) : std::nullopt;
}

template <>
std::optional<int> Preferences::convert<int>(const QVariant &stored)
{
    return wholeNumberOf<int>(stored);
}

template <>
std::optional<qint64> Preferences::convert<qint64>(const QVariant &stored)
{
    return wholeNumberOf<qint64>(stored);
}

template <>
std::optional<double> Preferences::convert<double>(const QVariant &stored)
{
    return numberOf(stored);
}

template <>
std::optional<float> Preferences::convert<float>(const QVariant &stored)
{
    const auto number = numberOf(stored);
    return number && std::isfinite(float(*number)) ? std::optional(float(*number)) : std::nullopt;
}

template <>
std::optional<QString> Preferences::convert<QString>(const QVariant &stored)
{
    if (isText(stored))
        return stored.toString();
    return numberOf(stored) ? std::optional(stored.toString()) : std::nullopt;
}

template <>
std::optional<QDateTime> Preferences::convert<QDateTime>(const QVariant &stored)
{
    if (stored.typeId() == QMetaType::QDateTime && stored.toDateTime().isValid())
        return stored.toDateTime();
    return std::nullopt;
}

template <>
std::optional<QStringList> Preferences::convert<QStringList>(const QVariant &stored)
{
    if (stored.typeId() == QMetaType::QStringList)
        return stored.toStringList();
    if (stored.typeId() != QMetaType::QVariantList)
        return std::nullopt;
    QStringList texts;
    for (const QVariant &element : stored.toList()) {
        if (isText(element)) // an array that was read from the file
            texts << element.toString();
    }
    return texts;
}

template <>
std::optional<QVariantMap> Preferences::convert<QVariantMap>(const QVariant &stored)
{
    return stored.typeId() == QMetaType::QVariantMap ? std::optional(stored.toMap()) : std::nullopt;
}

} // namespace brinemark
