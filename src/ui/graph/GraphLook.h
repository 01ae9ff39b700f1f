// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace brinemark
{

/// The colours and the font in which a graph is drawn.
struct GraphLook {
    QColor background;
    QColor text;
    QColor axis;
    QColor grid;
    QFont font;

    /// The look on the screen.
    static GraphLook onScreen(const QPalette &palette, const QFont &font);

    /// The look on paper and in exported files: dark on white whatever the desktop's colours. The font size is in
    /// pixels, so that text grows with the drawing and not with the paper's resolution.
    static GraphLook onPaper(const QFont &font);

    /// The colour of an outline that makes a line of `colour` visible on the background; invalid when it is visible
    /// without one.
    [[nodiscard]] QColor outlineOf(const QColor &colour) const;
};

} // namespace brinemark
