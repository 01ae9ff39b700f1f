// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphHeading.h"
#include "ui/graph/GraphLook.h"
#include "ui/graph/GraphScene.h"

class QPainter;

namespace brinemark
{

/// The heading and the legend of a printed or exported graph: the heading above it, and below it the names of the
/// visible lines beside their colours. Sizes are in the painter's units.
class GraphKey
{
public:
    GraphKey(const GraphScene &scene, const GraphLook &look, const GraphHeading &heading, double width);

    [[nodiscard]] double headingHeight() const { return m_headingHeight; } ///< 0 when there is no title
    [[nodiscard]] double legendHeight() const { return m_legendHeight; }   ///< 0 when no visible line has a name

    /// Draws both into `target`, which must have the width given to the constructor: the heading at its top, the
    /// legend at its bottom.
    void drawTo(QPainter &painter, const QRectF &target) const;

private:
    struct Entry {
        QString name;
        QColor colour;
        QPointF place; ///< top left corner, relative to that of the legend
    };

    [[nodiscard]] QFont titleFont() const;
    void drawHeading(QPainter &painter, QRectF line) const;

    GraphLook m_look;
    GraphHeading m_heading;
    QList<Entry> m_entries;
    double m_headingHeight = 0;
    double m_legendHeight = 0;
};

} // namespace brinemark
