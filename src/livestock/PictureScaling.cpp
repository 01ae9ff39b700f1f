// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/PictureScaling.h"

#include "model/pictures/PictureReader.h"

namespace brinemark
{

QSize scaledToWell(const QSize &image, const QSize &well)
{
    if (image.width() <= well.width() && image.height() <= well.height())
        return image;
    // In whole numbers: dividing by a ratio of floating point would drop a pixel now and then.
    const qint64 w = image.width();
    const qint64 h = image.height();
    const bool byWidth = w * well.height() >= h * well.width();
    const QSize scaled =
        byWidth ? QSize(well.width(), int(h * well.width() / w)) : QSize(int(w * well.height() / h), well.height());
    return scaled.expandedTo({1, 1});
}

ItemImage imageForWell(const QByteArray &bytes)
{
    const QSize whole = readPictureHeader(bytes).size;
    if (!whole.isValid())
        return {};
    const QSize scaled = scaledToWell(whole, pictureWell);
    if (scaled == whole)
        return readPicture(bytes).problem == PictureProblem::None ? ItemImage(bytes) : ItemImage();
    // The reader rounds the other way for some proportions, and is then a pixel larger.
    return ItemImage::fromImage(readPicture(bytes, pictureWell).image.copy(QRect({0, 0}, scaled)));
}

} // namespace brinemark
