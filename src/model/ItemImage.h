// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>

namespace brinemark
{

/// The picture of a livestock record: encoded bytes, decoded when first needed.
class ItemImage
{
public:
    ItemImage() = default;
    /// Encoded bytes of any image format; not examined before `image()` or `fileData()` is called.
    explicit ItemImage(const QByteArray &encoded)
        : m_encoded(encoded)
    {
    }
    /// Encodes the image as PNG; a null image gives no picture.
    [[nodiscard]] static ItemImage fromImage(const QImage &image);

    [[nodiscard]] bool isNone() const { return m_encoded.isEmpty(); }
    [[nodiscard]] const QByteArray &encoded() const { return m_encoded; }

    /// The decoded picture; null when there is none or the bytes cannot be decoded. Cached by the first call.
    [[nodiscard]] QImage image() const;

    /// The bytes for the tank file. PNG bytes are returned unchanged, other formats are converted to PNG. Bytes that
    /// cannot be decoded are returned unchanged too, so that saving never loses them.
    [[nodiscard]] QByteArray fileData() const;

    friend bool operator==(const ItemImage &a, const ItemImage &b) { return a.m_encoded == b.m_encoded; }

private:
    mutable QByteArray m_encoded; ///< converted to PNG by `fileData()`
    mutable bool m_converted = false;
    mutable QImage m_decoded;
    mutable bool m_looked = false;
};

} // namespace brinemark
