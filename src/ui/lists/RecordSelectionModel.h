// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QItemSelectionModel>

#include <functional>
#include <vector>

namespace brinemark
{

/// First and last row of each run of adjacent rows in a selection, in ascending order.
[[nodiscard]] std::vector<std::pair<int, int>> rowRuns(const QItemSelection &selection);

/// A selection model that, while it is armed, calls a callback before the selected rows change. The callback may sort
/// the list. The rows under the pointer are then other ones than the user aimed at, so the change is dropped, and with
/// it all other changes of the same gesture: a click, for instance, selects and sets the current index in two steps.
/// Moving between the cells of a row does not count as a change.
class RecordSelectionModel : public QItemSelectionModel
{
    Q_OBJECT

public:
    /// `rowsWillChange` disarms the selection and returns whether to drop the change. Selections that the callback
    /// makes are never dropped.
    RecordSelectionModel(QAbstractItemModel *model, std::function<bool()> rowsWillChange, QObject *parent);

    void setArmed(bool armed) { m_armed = armed; }

    /// All changes between these two calls belong to one gesture: a press of a key or of a mouse button up to its
    /// release.
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
