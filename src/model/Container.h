// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/plist/Value.h"
#include "model/ContainerKind.h"
#include "model/Record.h"

#include <QString>

#include <memory>

namespace brinemark
{

class Tank;

/// Base of a tank's nine record lists, independent of the record type: an ordered list with a name and a sort order.
/// Views show the records in list order; sorting reorders the list itself.
class Container
{
public:
    virtual ~Container();
    Container(const Container &) = delete;
    Container &operator=(const Container &) = delete;

    [[nodiscard]] ContainerKind kind() const { return m_kind; }
    [[nodiscard]] const ContainerTraits &traits() const { return traitsOf(m_kind); }
    [[nodiscard]] Tank *tank() const { return m_tank; }

    [[nodiscard]] const QString &name() const { return m_name; }
    [[nodiscard]] bool sortAscending() const { return m_sortAscending; }
    void setSortAscending(bool ascending) { m_sortAscending = ascending; }
    [[nodiscard]] const QString &sortIdentifier() const { return m_sortIdentifier; }
    void setSortIdentifier(const QString &identifier) { m_sortIdentifier = identifier; }

    [[nodiscard]] virtual int count() const = 0;
    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    [[nodiscard]] virtual std::shared_ptr<Record> recordAt(int index) const = 0;
    /// The index of the first occurrence of this very object; -1 when it is not in the list.
    [[nodiscard]] virtual int indexOf(const Record *record) const = 0;
    [[nodiscard]] bool contains(const Record *record) const { return indexOf(record) >= 0; }

    /// Inserts the record, which must be of this container's kind, before `index`; past the end it is appended. Does
    /// not set the record's tank; `Tank::insertItemData` does both.
    virtual void insertRecord(std::shared_ptr<Record> record, int index) = 0;
    void appendRecord(std::shared_ptr<Record> record) { insertRecord(std::move(record), count()); }
    /// Removes the record and returns it. An index out of range is a programming error.
    virtual std::shared_ptr<Record> removeRecordAt(int index) = 0;
    virtual void removeEveryOccurrence(const Record *record) = 0;
    virtual void clear() = 0;

    /// Stores direction and identifier, then sorts in place; descending is the exact negation of ascending.
    /// ContainerSort.cpp defines what each identifier sorts by. Equal records keep their order.
    void sortWithIdentifier(const QString &identifier, bool ascending);
    void sort(); ///< with the stored identifier and direction

    /// The file form of the records and of the list's attributes.
    [[nodiscard]] plist::Array dictArray() const;
    [[nodiscard]] virtual plist::Dict listAttributesDict() const;

    /// Appends the records of a file's array, then applies the file's list attributes. Either may be missing (null).
    /// \throws TankReadError when a record cannot be read
    void readArray(const plist::Value *records, const plist::Value *attributes);

protected:
    Container(ContainerKind kind, Tank *parent);

    virtual void sortRecords() = 0;
    virtual void reserve(int count) = 0;
    virtual void appendFromDict(const plist::Dict &record) = 0;
    virtual void readAttributes(const plist::Dict &attributes);

private:
    ContainerKind m_kind;
    QString m_name;
    Tank *m_tank;
    bool m_sortAscending = true;
    QString m_sortIdentifier;
};

} // namespace brinemark
