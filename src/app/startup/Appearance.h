// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QPalette;

namespace brinemark
{

/// Loads the toolkit's own texts in the user's language. With `dark`, also sets the dark palette whatever the desktop's
/// colours. Call once, before the first widget is created.
void prepareAppearance(bool dark);

/// A dark palette, for desktops that have none and for pictures of the program in dark colours.
[[nodiscard]] QPalette darkPalette();

} // namespace brinemark
