// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>

namespace brinemark
{

class TwoDGraphView;

/// The numbers are those by which data sources and delegates know the axes.
enum class GraphAxis { Y = 0, X = 1 };

enum class GraphSymbol { None, Square, Circle, Triangle, Diamond };

/// How a line is drawn.
struct GraphLineAttributes {
    QColor colour;    ///< opaque
    double width = 1; ///< device-independent pixels
    GraphSymbol symbol = GraphSymbol::None;
    QString name = {}; ///< what the legend on paper calls it; a line without a name is not in it
};

/// What a graph view draws. The view asks again on every `reloadData()` and keeps nothing longer than that.
class TwoDGraphDataSource
{
public:
    virtual ~TwoDGraphDataSource() = default;

    [[nodiscard]] virtual int numberOfLinesInTwoDGraphView(const TwoDGraphView &view) const = 0;

    /// The points of a line in ascending order of x, in graph units; coordinates carry single precision. An empty list
    /// draws no line.
    [[nodiscard]] virtual QList<QPointF> dataForLineIndex(const TwoDGraphView &view, int line) const = 0;

    /// The range of an axis. A range without an extent is drawn as one of length 1.
    [[nodiscard]] virtual double minimumValueForLineIndex(const TwoDGraphView &view, int line,
                                                          GraphAxis axis) const = 0;
    [[nodiscard]] virtual double maximumValueForLineIndex(const TwoDGraphView &view, int line,
                                                          GraphAxis axis) const = 0;
};

/// What a graph view asks about the look of its lines, its tick labels and its tool tips.
class TwoDGraphDelegate
{
public:
    virtual ~TwoDGraphDelegate() = default;

    [[nodiscard]] virtual GraphLineAttributes attributesForLineIndex(const TwoDGraphView &view, int line) const = 0;

    /// The text of a tick mark; `defaultLabel` is its value with a full stop.
    [[nodiscard]] virtual QString labelForTickMarkIndex(const TwoDGraphView &view, int index, GraphAxis axis,
                                                        const QString &defaultLabel) const = 0;

    /// The tool tip of a point in graph units, one of a line's own points. Empty for none.
    [[nodiscard]] virtual QString stringForToolTip(const TwoDGraphView &view, QPointF point) const = 0;
};

} // namespace brinemark
