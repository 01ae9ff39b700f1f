// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>

#include <atomic>
#include <vector>

namespace brinemark
{

class ItemImage;
class TankList;

/// Encodes with fast compression; a null image gives no bytes. Ends early, without bytes, once `*cancelled` is set.
/// Safe in any thread.
[[nodiscard]] QByteArray pngBytes(const QImage &image, const std::atomic_bool *cancelled = nullptr);

/// The picture as PNG; empty when the bytes cannot be decoded, or when it was cancelled. Safe in any thread.
[[nodiscard]] QByteArray convertedToPng(const QByteArray &encoded, const std::atomic_bool *cancelled = nullptr);

/// The pictures of all livestock that are still to be converted for the file.
[[nodiscard]] std::vector<ItemImage> unconvertedPictures(const TankList &tanks);

/// Converts these pictures before it returns, which can take a second each.
void convertPicturesNow(const TankList &tanks);

} // namespace brinemark
