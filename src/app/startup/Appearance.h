// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QPalette;

namespace brinemark
{

/// Loads the toolkit's own texts in the user's language and, when asked to, puts on the dark palette whatever the
/// desktop says. Called once, before the first widget.
void prepareAppearance(bool dark);

/// A dark palette for desktops that bring none, and for pictures of the program in the dark.
[[nodiscard]] QPalette darkPalette();

} // namespace brinemark
