// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>

namespace brinemark
{

class TwoDGraphView;

/// The numbers are part of the interface: data sources and delegates identify the axes by them.
enum class GraphAxis { Y = 0, X = 1 };

enum class GraphSymbol { None, Square, Circle, Triangle, Diamond };

/// How a line is drawn.
struct GraphLineAttributes {
    QColor colour;    ///< opaque
    double width = 1; ///< device-independent pixels
    GraphSymbol symbol = GraphSymbol::None;
    QString name = {}; ///< its name in the legend on paper; a line without a name is left out of the legend
};

/// Supplies the lines of a graph view. The view asks again at every `reloadData()`.
class TwoDGraphDataSource
{
public:
    virtual ~TwoDGraphDataSource() = default;

    [[nodiscard]] virtual int numberOfLinesInTwoDGraphView(const TwoDGraphView &view) const = 0;

    /// The points of a line in ascending order of x, in graph units, with single precision. An empty list draws no
    /// line.
    [[nodiscard]] virtual QList<QPointF> dataForLineIndex(const TwoDGraphView &view, int line) const = 0;

    /// The ends of an axis range for one line. An empty range is drawn with the length 1.
    [[nodiscard]] virtual double minimumValueForLineIndex(const TwoDGraphView &view, int line,
                                                          GraphAxis axis) const = 0;
    [[nodiscard]] virtual double maximumValueForLineIndex(const TwoDGraphView &view, int line,
                                                          GraphAxis axis) const = 0;
};

/// Supplies the look of the lines, the tick labels and the tool tips of a graph view.
class TwoDGraphDelegate
{
public:
    virtual ~TwoDGraphDelegate() = default;

    [[nodiscard]] virtual GraphLineAttributes attributesForLineIndex(const TwoDGraphView &view, int line) const = 0;

    /// The label of a tick mark; `defaultLabel` is its exact value, with a full stop as the decimal sign.
    [[nodiscard]] virtual QString labelForTickMarkIndex(const TwoDGraphView &view, int index, GraphAxis axis,
                                                        const QString &defaultLabel) const = 0;

    /// The tool tip of one of a line's points, in graph units; empty for none.
    [[nodiscard]] virtual QString stringForToolTip(const TwoDGraphView &view, QPointF point, int line) const = 0;
};

} // namespace brinemark
