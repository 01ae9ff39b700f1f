// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QItemSelectionModel>

#include <functional>
#include <vector>

namespace brinemark
{

/// First and last row of each run of rows that a selection touches, in order and apart from one another.
[[nodiscard]] std::vector<std::pair<int, int>> rowRuns(const QItemSelection &selection);

/// A selection that, while it is armed, asks before its rows change. The answer may move rows, so that the change would
/// hit another record than was aimed at: then the change is dropped, with all that belongs to it (a click selects and
/// makes current in two steps). Moving between the cells of a row is no change.
class RecordSelectionModel : public QItemSelectionModel
{
    Q_OBJECT

public:
    /// `rowsWillChange` disarms the selection and answers whether the change is to be dropped; what it selects itself
    /// goes through.
    RecordSelectionModel(QAbstractItemModel *model, std::function<bool()> rowsWillChange, QObject *parent);

    void setArmed(bool armed) { m_armed = armed; }

    /// All changes between these belong to one press of a key or of the mouse, up to its release.
    void beginGesture();
    void endGesture();
    [[nodiscard]] bool dropsGesture() const { return m_dropping; }

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags command) override;
    void setCurrentIndex(const QModelIndex &index, SelectionFlags command) override;

private:
    [[nodiscard]] bool changesRows(const QItemSelection &selection, SelectionFlags command) const;
    bool isDropped(bool changesRows);

    std::function<bool()> m_rowsWillChange;
    bool m_armed = false;
    bool m_asking = false;
    bool m_inGesture = false;
    bool m_dropping = false;
};

} // namespace brinemark
