// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/plist/Value.h"

#include <algorithm>

namespace brinemark::plist
{

namespace
{

bool keyLess(const Dict::Entry &a, const Dict::Entry &b)
{
    return a.first < b.first;
}

} // namespace

Value::Value(const QString &string)
    : m_content(string)
{
}
Value::Value(int integer)
    : m_content(qint64(integer))
{
}
Value::Value(qint64 integer)
    : m_content(integer)
{
}
Value::Value(double real)
    : m_content(real)
{
}
Value::Value(bool flag)
    : m_content(flag)
{
}
Value::Value(const QDateTime &date)
    : m_content(date)
{
}
Value::Value(const QByteArray &data)
    : m_content(data)
{
}
Value::Value(Array array)
    : m_content(std::make_shared<const Array>(std::move(array)))
{
}
Value::Value(Dict dict)
    : m_content(std::make_shared<const Dict>(std::move(dict)))
{
}

const Array *Value::array() const
{
    const auto *shared = std::get_if<SharedArray>(&m_content);
    return shared ? shared->get() : nullptr;
}

const Dict *Value::dict() const
{
    const auto *shared = std::get_if<SharedDict>(&m_content);
    return shared ? shared->get() : nullptr;
}

bool operator==(const Value &a, const Value &b)
{
    if (a.m_content.index() != b.m_content.index())
        return false;
    if (const auto *array = a.array())
        return *array == *b.array();
    if (const auto *dict = a.dict())
        return *dict == *b.dict();
    return a.m_content == b.m_content;
}

Dict::Dict(std::initializer_list<Entry> entries)
    : Dict(std::vector<Entry>(entries))
{
}

Dict::Dict(std::vector<Entry> entries)
    : m_entries(std::move(entries))
{
    const auto strictlyLess = [](const Entry &a, const Entry &b) { return !(b.first <= a.first); };
    const auto unordered = std::adjacent_find(m_entries.begin(), m_entries.end(),
                                              [&](const Entry &a, const Entry &b) { return !strictlyLess(a, b); });
    if (unordered == m_entries.end())
        return;
    // A stable sort leaves equal keys in the given order; unique() from the back then keeps the last entry of each key.
    std::stable_sort(m_entries.begin(), m_entries.end(), keyLess);
    const auto firstKept = std::unique(m_entries.rbegin(), m_entries.rend(),
                                       [](const Entry &a, const Entry &b) { return a.first == b.first; });
    m_entries.erase(m_entries.begin(), firstKept.base());
}

const Value *Dict::find(QStringView key) const
{
    const auto it = std::lower_bound(m_entries.begin(), m_entries.end(), key,
                                     [](const Entry &entry, QStringView k) { return entry.first < k; });
    return it != m_entries.end() && it->first == key ? &it->second : nullptr;
}

void Dict::insert(const QString &key, Value value)
{
    if (m_entries.empty() || m_entries.back().first < key) {
        m_entries.emplace_back(key, std::move(value));
        return;
    }
    const auto it = std::lower_bound(m_entries.begin(), m_entries.end(), key,
                                     [](const Entry &entry, const QString &k) { return entry.first < k; });
    if (it->first == key)
        it->second = std::move(value);
    else
        m_entries.emplace(it, key, std::move(value));
}

void Dict::remove(QStringView key)
{
    std::erase_if(m_entries, [key](const Entry &entry) { return entry.first == key; });
}

} // namespace brinemark::plist
