// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Parameters.h"

#include <QScrollArea>

#include <vector>

class QLabel;
class QVBoxLayout;

namespace brinemark
{

class ConditionSeries;
class LegendEntry;
class Tank;

/// A LegendEntry for each line of a graph, in drawing order; below them, under a caption (object name
/// "notTestedCaption"), those that were not tested. Scrolls when there is no room.
class GraphLegend : public QScrollArea
{
    Q_OBJECT

public:
    explicit GraphLegend(QWidget *parent = nullptr);

    /// Lists the lines of the series, all visible, with the tank's targets as tool tips. Without a tank the legend is
    /// empty.
    void showLines(const ConditionSeries &series, const Tank *tank);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void lineShown(int line, bool visible);
    void linePointedAt(int line); ///< the line whose entry is under the pointer or has the focus; -1 for none

private:
    void tellPointedAt();

    QVBoxLayout *m_column = nullptr;
    QLabel *m_notTestedCaption = nullptr;
    std::vector<LegendEntry *> m_entries; ///< by line
};

} // namespace brinemark
