// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ItemImage.h"

#include <QBuffer>

namespace brinemark
{

namespace
{

QByteArray pngOf(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return {};
    return bytes;
}

} // namespace

ItemImage ItemImage::fromImage(const QImage &image)
{
    if (image.isNull())
        return {};
    ItemImage result(pngOf(image));
    result.m_decoded = image;
    result.m_looked = true;
    return result;
}

QImage ItemImage::image() const
{
    if (!m_looked) {
        m_looked = true;
        if (!m_encoded.isEmpty())
            m_decoded.loadFromData(m_encoded);
    }
    return m_decoded;
}

QByteArray ItemImage::fileData() const
{
    if (m_encoded.isEmpty() || m_encoded.startsWith("\x89PNG\r\n\x1a\n"))
        return m_encoded;
    // Convert only once, and do not keep the decoded picture: a file may hold thousands that are never shown.
    const QByteArray png = m_converted ? QByteArray() : pngOf(m_looked ? m_decoded : QImage::fromData(m_encoded));
    m_converted = true;
    if (!png.isEmpty())
        m_encoded = png;
    return m_encoded;
}

} // namespace brinemark
