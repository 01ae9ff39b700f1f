// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMargins>

/// The distances between widgets, in pixels: steps of 4, so that views, sheets and windows look alike.
namespace brinemark::spacing
{

inline constexpr int tight = 4; ///< between parts that are read together: a caption and its field, the icons of a bar
inline constexpr int group = 8; ///< inside a group of controls, and around a row of buttons or a panel
inline constexpr int section = 12; ///< between the groups of a view, and above and below its title line
inline constexpr int content = 16; ///< around the content of a view, sheet or window, and between its large parts

inline constexpr QMargins aroundGroup(group, group, group, group);
inline constexpr QMargins aroundContent(content, content, content, content);

} // namespace brinemark::spacing
