// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Container.h"
#include "model/ContainerSort.h"
#include "model/RecordDict.h"

#include <algorithm>
#include <vector>

namespace brinemark
{

/// A container whose records have the type R.
template <class R>
class RecordContainer : public Container
{
public:
    using Records = std::vector<std::shared_ptr<R>>;

    [[nodiscard]] Records &records() { return m_records; }
    [[nodiscard]] const Records &records() const { return m_records; }

    [[nodiscard]] int count() const override { return int(m_records.size()); }
    [[nodiscard]] std::shared_ptr<Record> recordAt(int index) const override
    {
        return m_records.at(std::size_t(index));
    }

    [[nodiscard]] int indexOf(const Record *record) const override
    {
        const auto it =
            std::find_if(m_records.begin(), m_records.end(), [&](const auto &r) { return r.get() == record; });
        return it == m_records.end() ? -1 : int(it - m_records.begin());
    }

    void insertRecord(std::shared_ptr<Record> record, int index) override
    {
        Q_ASSERT(dynamic_cast<R *>(record.get()));
        const int place = std::clamp(index, 0, count());
        m_records.insert(m_records.begin() + place, std::static_pointer_cast<R>(std::move(record)));
    }

    std::shared_ptr<Record> removeRecordAt(int index) override
    {
        std::shared_ptr<Record> record = recordAt(index);
        m_records.erase(m_records.begin() + index);
        return record;
    }

    void removeEveryOccurrence(const Record *record) override
    {
        std::erase_if(m_records, [&](const auto &r) { return r.get() == record; });
    }

    void clear() override { m_records.clear(); }

protected:
    using Container::Container;

    void sortRecords() override { sortRecordList(m_records, sortIdentifier(), sortAscending()); }
    void reserve(int count) override { m_records.reserve(std::size_t(count)); }

    void appendFromDict(const plist::Dict &dict) override
    {
        auto record = std::make_shared<R>(Blank{});
        record->tank = m_tankRef;
        readRecord(*record, dict);
        m_records.push_back(std::move(record));
    }

private:
    Records m_records;
    TankRef m_tankRef{tank()};
};

} // namespace brinemark
