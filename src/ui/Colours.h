// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPalette>

namespace brinemark
{

/// What a colour says. It never says it alone: a mark or a word stands beside it.
enum class ColourRole { InRange, Near, Out, NotTested, Overdue, Done, Accent, SecondaryText, Count };

/// The colour of `role` on the palette's window and base colours: the light or the dark set, by the window's lightness.
/// Every one can be read as text there (contrast 4.5:1 or more).
QColor colour(ColourRole role, const QPalette &palette);

/// The palette with its text in the colour of secondary text, for a label beside something more important.
QPalette quietPalette(QPalette palette);

/// Whether the palette is a dark one.
bool isDark(const QPalette &palette);

/// How well two opaque colours are told apart, from 1 to 21: the contrast ratio of their relative luminances as
/// WCAG 2.1 defines it.
double contrast(const QColor &a, const QColor &b);

} // namespace brinemark
