// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ItemImage.h"

#include <QSize>

/// How large a picture a record keeps.
namespace brinemark
{

/// The well that pictures are shrunk to, in pixels: enough for a large window, a fraction of a camera's picture in the
/// tank file.
inline constexpr QSize pictureWell(1600, 1200);

/// The largest size that fits into the well in the picture's proportions, fractions dropped. A picture that fits is
/// never enlarged, and none gets narrower than one pixel.
[[nodiscard]] QSize scaledToWell(const QSize &image, const QSize &well);

/// The picture for a record: the very bytes when it fits into `pictureWell`, else a PNG of the upright picture shrunk
/// to it. None when it cannot be decoded. Can take a second for a large picture; safe in any thread.
[[nodiscard]] ItemImage imageForWell(const QByteArray &bytes);

} // namespace brinemark
