// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

/// The one place where encoded pictures are read. The content decides, never a suffix, and only raster formats are
/// decoded: PNG, JPEG, WebP, GIF, BMP and TIFF. A vector picture could make the program open other files.
namespace brinemark
{

inline constexpr qint64 mostPictureFileBytes = qint64(256) << 20;
inline constexpr qint64 mostPicturePixels = 100'000'000;
inline constexpr int mostDecodedMegabytes = 512; ///< MiB of one decoded picture

/// Why a picture was refused.
enum class PictureProblem {
    None,
    NotReadable, ///< no such file, no permission, or not a regular file
    NotAPicture, ///< none of the formats
    TooLarge,    ///< above one of the limits
    Damaged,     ///< one of the formats, but it cannot be decoded
};

/// A decoded picture; null when there is a problem.
struct DecodedPicture {
    QImage image;
    PictureProblem problem = PictureProblem::None;
};

/// The bytes of a picture file; empty when there is a problem.
struct PictureFile {
    QByteArray bytes;
    PictureProblem problem = PictureProblem::None;
};

/// What a picture's header says. The size is that of the upright picture, and not valid when there is a problem.
struct PictureHeader {
    QSize size;
    PictureProblem problem = PictureProblem::None;
};

/// The decoder's name of the format ("png"), by the first bytes; empty for any other content.
[[nodiscard]] QByteArray pictureFormat(const QByteArray &bytes);

/// Reads the header only, so that readPicture() can still find the picture damaged. Safe in any thread.
[[nodiscard]] PictureHeader readPictureHeader(const QByteArray &bytes);

/// Decodes the picture, turned upright. A valid `box` (pixels) scales it smoothly, in its own proportions, to the
/// largest size that fits, which is faster than scaling the whole picture afterwards. Safe in any thread.
[[nodiscard]] DecodedPicture readPicture(const QByteArray &bytes, const QSize &box = {});

/// Reads a file whose header says that it is a picture within the limits. The picture itself is not decoded, so
/// readPicture() can still find it damaged. Pipes and devices are never read.
[[nodiscard]] PictureFile readPictureFile(const QString &path);

/// Name patterns ("*.png") of the formats, for a file panel.
[[nodiscard]] QStringList pictureFilePatterns();

} // namespace brinemark
