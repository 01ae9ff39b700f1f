// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

/// The columns of the profile text, in pixels.
namespace brinemark
{

/// The widest texts of the lines that hold two captions with their values.
struct ProfileWidths {
    int firstCaption = 0; ///< of all captions of the first column, also those that have their line to themselves
    int firstValue = 0;
    int secondCaption = 0;
    int secondValue = 0;
};

/// Captions end at the right-aligned stops, values begin at the left-aligned ones.
struct ProfileTabStops {
    int firstCaption = 0;
    int firstValue = 0;
    int secondCaption = 0;
    int secondValue = 0;
    int firstRoom = 0; ///< for a value of the first column that has a neighbour
};

/// The stops for lines of this width. With room enough every value fits, and the columns are at least as far apart as
/// their usual distance; otherwise the values share what the captions leave. `pixelsPerPoint` is the screen's.
[[nodiscard]] ProfileTabStops profileTabStops(const ProfileWidths &widths, int lineWidth, double pixelsPerPoint);

} // namespace brinemark
