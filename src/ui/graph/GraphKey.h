// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/graph/GraphLook.h"
#include "ui/graph/GraphScene.h"

class QPainter;

namespace brinemark
{

/// What a graph needs on paper, where nothing stands beside it: a title above, and below the names of the visible lines
/// beside their colours. Sizes are in the painter's units.
class GraphKey
{
public:
    GraphKey(const GraphScene &scene, const GraphLook &look, const QString &title, double width);

    [[nodiscard]] double titleHeight() const { return m_titleHeight; }   ///< 0 without a title
    [[nodiscard]] double legendHeight() const { return m_legendHeight; } ///< 0 without a named line

    /// Draws both into `target`, which has this key's width: the title at its top, the legend at its bottom.
    void drawTo(QPainter &painter, const QRectF &target) const;

private:
    struct Entry {
        QString name;
        QColor colour;
        QPointF place; ///< top left, from that of the legend
    };

    [[nodiscard]] QFont titleFont() const;

    GraphLook m_look;
    QString m_title;
    QList<Entry> m_entries;
    double m_titleHeight = 0;
    double m_legendHeight = 0;
};

} // namespace brinemark
