// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPalette>

namespace brinemark
{

/// What a colour means. Colour is never the only sign: a mark or a word accompanies it.
enum class ColourRole { InRange, Near, Out, NotTested, Overdue, Done, Accent, SecondaryText };

/// The colour of `role` for the palette, from the light or the dark set according to the lightness of the window
/// colour. Every colour is readable as text on the window and base colours (contrast of at least 4.5:1).
QColor colour(ColourRole role, const QPalette &palette);

/// The palette with its text in the secondary-text colour, for labels that accompany something more important.
QPalette quietPalette(QPalette palette);

/// Whether the palette is a dark one.
bool isDark(const QPalette &palette);

/// The contrast ratio of two opaque colours, from 1 (alike) to 21 (black and white): the ratio of their relative
/// luminances as WCAG 2.1 defines it.
double contrast(const QColor &a, const QColor &b);

} // namespace brinemark
