// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphLook.h"
#include "ui/graph/GraphScene.h"

class QPainter;

namespace brinemark
{

/// The title and the legend of a printed or exported graph: the title above it, and below it the names of the visible
/// lines beside their colours. Sizes are in the painter's units.
class GraphKey
{
public:
    GraphKey(const GraphScene &scene, const GraphLook &look, const QString &title, double width);

    [[nodiscard]] double titleHeight() const { return m_titleHeight; }   ///< 0 when there is no title
    [[nodiscard]] double legendHeight() const { return m_legendHeight; } ///< 0 when no visible line has a name

    /// Draws both into `target`, which must have the width given to the constructor: the title at its top, the legend
    /// at its bottom.
    void drawTo(QPainter &painter, const QRectF &target) const;

private:
    struct Entry {
        QString name;
        QColor colour;
        QPointF place; ///< top left corner, relative to that of the legend
    };

    [[nodiscard]] QFont titleFont() const;

    GraphLook m_look;
    QString m_title;
    QList<Entry> m_entries;
    double m_titleHeight = 0;
    double m_legendHeight = 0;
};

} // namespace brinemark
