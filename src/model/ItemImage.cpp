// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ItemImage.h"

#include "model/pictures/PictureReader.h"
#include "model/pictures/PngConversion.h"

#include <atomic>

namespace brinemark
{

ItemImage::ItemImage(const QByteArray &encoded)
{
    static std::atomic<quint64> lastIdentity = 0;
    if (!encoded.isEmpty())
        m_shared = std::make_shared<Shared>(Shared{encoded, ++lastIdentity, pictureFormat(encoded) == "png"});
}

ItemImage ItemImage::fromImage(const QImage &image)
{
    return ItemImage(pngBytes(image));
}

const QByteArray &ItemImage::encoded() const
{
    static const QByteArray none;
    return m_shared ? m_shared->encoded : none;
}

QImage ItemImage::image() const
{
    return readPicture(encoded()).image;
}

void ItemImage::setConverted(const QByteArray &png)
{
    if (!m_shared)
        return;
    m_shared->converted = true;
    if (!png.isEmpty())
        m_shared->encoded = png;
}

} // namespace brinemark
