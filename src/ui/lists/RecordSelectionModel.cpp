// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordSelectionModel.h"

#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>

namespace brinemark
{

std::vector<std::pair<int, int>> rowRuns(const QItemSelection &selection)
{
    std::vector<std::pair<int, int>> ranges;
    ranges.reserve(std::size_t(selection.size()));
    for (const QItemSelectionRange &range : selection)
        ranges.emplace_back(range.top(), range.bottom());
    std::sort(ranges.begin(), ranges.end());
    std::vector<std::pair<int, int>> runs;
    for (const auto &[first, last] : ranges) {
        if (!runs.empty() && first <= runs.back().second + 1)
            runs.back().second = std::max(runs.back().second, last);
        else
            runs.emplace_back(first, last);
    }
    return runs;
}

RecordSelectionModel::RecordSelectionModel(QAbstractItemModel *model, std::function<bool()> rowsWillChange,
                                           QObject *parent)
    : QItemSelectionModel(model, parent)
    , m_rowsWillChange(std::move(rowsWillChange))
{
}

void RecordSelectionModel::beginGesture()
{
    m_inGesture = true;
    m_dropping = false;
}

void RecordSelectionModel::endGesture()
{
    m_inGesture = false;
    m_dropping = false;
}

bool RecordSelectionModel::changesRows(const QItemSelection &selection, SelectionFlags command) const
{
    if (command == NoUpdate)
        return false;
    if (command & (Deselect | Toggle))
        return !selection.isEmpty();
    const auto wanted = rowRuns(command & Select ? selection : QItemSelection());
    const auto now = rowRuns(this->selection());
    if (command & (Clear | Current))
        return wanted != now;
    return !std::all_of(wanted.begin(), wanted.end(), [&](const auto &run) {
        return std::any_of(now.begin(), now.end(), [&](const auto &selected) {
            return selected.first <= run.first && run.second <= selected.second;
        });
    });
}

bool RecordSelectionModel::isDropped(bool changesRows)
{
    if (m_asking)
        return false;
    if (m_dropping)
        return true;
    if (!m_armed || !changesRows)
        return false;
    const QScopedValueRollback asking(m_asking, true);
    m_dropping = m_rowsWillChange();
    return m_dropping;
}

void RecordSelectionModel::select(const QItemSelection &selection, SelectionFlags command)
{
    if (!isDropped(m_armed && changesRows(selection, command)))
        QItemSelectionModel::select(selection, command);
    else if (!m_inGesture)
        m_dropping = false;
}

void RecordSelectionModel::setCurrentIndex(const QModelIndex &index, SelectionFlags command)
{
    if (!m_inGesture && !m_asking)
        m_dropping = false;
    const bool changes =
        m_armed && (index.row() != currentIndex().row() || changesRows(QItemSelection(index, index), command));
    if (!isDropped(changes)) {
        QItemSelectionModel::setCurrentIndex(index, command);
    } else if (!m_inGesture && command == NoUpdate) {
        // The view selects next. Drop that selection too, but only if it comes before the event loop runs again.
        QTimer::singleShot(0, this, [this] {
            if (!m_inGesture)
                m_dropping = false;
        });
    } else if (!m_inGesture) {
        m_dropping = false;
    }
}

} // namespace brinemark

#include "moc_RecordSelectionModel.cpp"
