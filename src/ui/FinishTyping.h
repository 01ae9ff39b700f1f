// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace brinemark
{

/// Stores what is being typed into a cell or a row of the window, as leaving it would, so that a command that follows
/// (save, print, quit) deals with what is seen.
void finishTyping(const QWidget *window);

} // namespace brinemark
