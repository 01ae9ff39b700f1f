// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringView>

#include <memory>
#include <utility>
#include <variant>
#include <vector>

/// Property lists: trees of strings, numbers, flags, dates, data, arrays and dictionaries, and their file forms.
namespace brinemark::plist
{

class Value;
class Dict;
using Array = std::vector<Value>;

/// One node of a property list. Cheap to copy: strings, data, arrays and dictionaries are shared and never change once
/// they are inside a Value. The typed accessors return null for a value of another type and never convert.
class Value
{
public:
    Value() = default; ///< no value; never written to a file
    Value(const QString &string);
    Value(const char *) = delete;
    Value(int integer);
    Value(qint64 integer);
    Value(double real);
    Value(bool flag);
    Value(const QDateTime &date);
    Value(const QByteArray &data);
    Value(Array array);
    Value(Dict dict);

    [[nodiscard]] bool isNone() const { return std::holds_alternative<std::monostate>(m_content); }
    [[nodiscard]] const QString *string() const { return std::get_if<QString>(&m_content); }
    [[nodiscard]] const qint64 *integer() const { return std::get_if<qint64>(&m_content); }
    [[nodiscard]] const double *real() const { return std::get_if<double>(&m_content); }
    [[nodiscard]] const bool *flag() const { return std::get_if<bool>(&m_content); }
    [[nodiscard]] const QDateTime *date() const { return std::get_if<QDateTime>(&m_content); }
    [[nodiscard]] const QByteArray *data() const { return std::get_if<QByteArray>(&m_content); }
    [[nodiscard]] const Array *array() const;
    [[nodiscard]] const Dict *dict() const;

    /// Same type and same content, arrays and dictionaries compared element by element.
    friend bool operator==(const Value &a, const Value &b);

private:
    using SharedArray = std::shared_ptr<const Array>;
    using SharedDict = std::shared_ptr<const Dict>;
    std::variant<std::monostate, QString, qint64, double, bool, QDateTime, QByteArray, SharedArray, SharedDict>
        m_content;
};

/// A dictionary: entries ordered by key (code unit order), each key once.
class Dict
{
public:
    using Entry = std::pair<QString, Value>;

    Dict() = default;
    /// A later entry of the same key replaces an earlier one.
    Dict(std::initializer_list<Entry> entries);
    /// Takes entries in any order; the last entry of a repeated key counts.
    explicit Dict(std::vector<Entry> entries);

    [[nodiscard]] const Value *find(QStringView key) const; ///< null when the key is missing
    [[nodiscard]] bool contains(QStringView key) const { return find(key) != nullptr; }
    /// Replaces an existing entry. Inserting in key order needs no search.
    void insert(const QString &key, Value value);
    void remove(QStringView key);
    void reserve(std::size_t count) { m_entries.reserve(count); }

    [[nodiscard]] std::size_t size() const { return m_entries.size(); }
    [[nodiscard]] bool empty() const { return m_entries.empty(); }
    [[nodiscard]] auto begin() const { return m_entries.begin(); }
    [[nodiscard]] auto end() const { return m_entries.end(); }

    friend bool operator==(const Dict &a, const Dict &b) { return a.m_entries == b.m_entries; }

private:
    std::vector<Entry> m_entries;
};

} // namespace brinemark::plist
