// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/ProfileCollection.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QSortFilterProxyModel>

namespace brinemark
{

/// The found profiles in the order found; a column for each of `searchFields`.
class FoundProfilesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void append(const SpeciesProfile &profile);
    void clear();
    [[nodiscard]] const SpeciesProfile &profileAt(int row) const { return m_foundArray[std::size_t(row)]; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<SpeciesProfile> m_foundArray;
};

/// The found profiles as the header orders them: as found at first, otherwise by the language's rules, with numbers by
/// their value.
class FoundProfilesOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FoundProfilesOrder(QObject *parent = nullptr);

protected:
    [[nodiscard]] bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QCollator m_collator;
};

} // namespace brinemark
