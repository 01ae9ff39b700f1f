// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Condition.h"

#include <QAbstractListModel>

namespace brinemark
{

/// The dates of water tests, in the order of the log, for combo boxes to choose from.
class TestDatesModel : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr int dateRole = Qt::UserRole; ///< the test's exact date and time

    using QAbstractListModel::QAbstractListModel;

    void setTests(Condition::Records tests);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

    /// Finds nothing by a whole text, so that the combo box never replaces a typed date by a test: a typed date means
    /// that whole day, even when a test shows the same text.
    [[nodiscard]] QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits,
                                        Qt::MatchFlags flags) const override;

private:
    Condition::Records m_tests;
};

} // namespace brinemark
