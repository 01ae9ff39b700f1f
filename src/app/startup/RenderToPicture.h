// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace brinemark
{

/// Writes a picture of the main window with the open document to a PNG file, on machines without a display as well.
/// False when the picture could not be written.
bool renderToPicture(const QString &path);

} // namespace brinemark
