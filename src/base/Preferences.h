// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

class QSettings;

namespace brinemark
{

/// The name of a preference and, in T, the type of its value.
template <class T>
struct PreferenceKey {
    const char *name;
};

/// The moment that stands for "never": 0001-01-01T00:00:00Z.
[[nodiscard]] QDateTime distantPast();

/// The user's preferences: named values that keep their types, stored in an XML property list. flush() writes changes
/// to disk, and so does the event loop from time to time. There are no registered defaults: a value that was never
/// stored is absent. Main thread only.
class Preferences
{
public:
    /// The user's own store: Brinemark/Brinemark.plist in the configuration folder.
    static Preferences &shared();

    /// A store in another file. A damaged file is renamed, and the store starts empty.
    explicit Preferences(const QString &path);
    ~Preferences(); ///< writes pending changes

    /// The stored value; none when it is absent or cannot be converted to T. Numbers, flags and texts convert to one
    /// another by their meaning ("YES", 1 and true are the same flag).
    template <class T>
    [[nodiscard]] std::optional<T> value(PreferenceKey<T> key) const
    {
        return convert<T>(variant(nameOf(key)));
    }
    template <class T>
    [[nodiscard]] T value(PreferenceKey<T> key, std::type_identity_t<T> fallback) const
    {
        return value(key).value_or(std::move(fallback));
    }
    template <class T>
    void set(PreferenceKey<T> key, const std::type_identity_t<T> &value)
    {
        setVariant(nameOf(key), QVariant::fromValue(value));
    }
    template <class T>
    [[nodiscard]] bool contains(PreferenceKey<T> key) const
    {
        return contains(nameOf(key));
    }
    template <class T>
    void remove(PreferenceKey<T> key)
    {
        remove(nameOf(key));
    }

    /// Access by names that are known only at run time. An absent value is an invalid variant; setting an invalid
    /// variant removes the value.
    [[nodiscard]] QVariant variant(const QString &name) const;
    void setVariant(const QString &name, const QVariant &value);
    [[nodiscard]] bool contains(const QString &name) const;
    void remove(const QString &name);
    [[nodiscard]] QStringList namesWithPrefix(const QString &prefix) const;

    /// From now on nothing is changed: setting and removing values does nothing.
    void setReadOnly() { m_readOnly = true; }

    /// Writes pending changes to disk; false when writing failed.
    bool flush();

    /// `tell` is called once in the life of this store: when changes cannot be written for the first time, whether by
    /// flush() or by the event loop. An empty function tells nobody.
    void onWriteFailure(std::function<void()> tell) { m_tellWriteFailure = std::move(tell); }

    [[nodiscard]] QString path() const { return m_path; }

private:
    template <class T>
    static QString nameOf(PreferenceKey<T> key)
    {
        return QString::fromLatin1(key.name);
    }
    template <class T>
    static std::optional<T> convert(const QVariant &stored);

    void checkWriting();
    void checkWritingSoon();

    QString m_path;
    std::unique_ptr<QSettings> m_settings;
    std::function<void()> m_tellWriteFailure;
    bool m_writeFailureTold = false;
    bool m_readOnly = false;
    QObject m_checks; ///< receives the queued checks, so that none comes after the end of the store
};

template <>
std::optional<bool> Preferences::convert<bool>(const QVariant &stored);
template <>
std::optional<int> Preferences::convert<int>(const QVariant &stored);
template <>
std::optional<qint64> Preferences::convert<qint64>(const QVariant &stored);
template <>
std::optional<float> Preferences::convert<float>(const QVariant &stored);
template <>
std::optional<double> Preferences::convert<double>(const QVariant &stored);
template <>
std::optional<QString> Preferences::convert<QString>(const QVariant &stored);
template <>
std::optional<QDateTime> Preferences::convert<QDateTime>(const QVariant &stored);
template <>
std::optional<QStringList> Preferences::convert<QStringList>(const QVariant &stored);
template <>
std::optional<QVariantMap> Preferences::convert<QVariantMap>(const QVariant &stored);

} // namespace brinemark
