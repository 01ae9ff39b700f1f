// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace brinemark
{

/// Draws the main window, with the document that is open, into a PNG file: for machines without a display. False when
/// the picture could not be written.
bool renderToPicture(const QString &path);

} // namespace brinemark
