// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>

namespace brinemark
{

/// The picture of a livestock record: encoded bytes, decoded only when somebody looks.
class ItemImage
{
public:
    ItemImage() = default;
    /// Encoded bytes of any image format; not looked at before `image()` or `fileData()`.
    explicit ItemImage(const QByteArray &encoded)
        : m_encoded(encoded)
    {
    }
    /// Encodes the image as PNG; a null image gives no picture.
    [[nodiscard]] static ItemImage fromImage(const QImage &image);

    [[nodiscard]] bool isNone() const { return m_encoded.isEmpty(); }
    [[nodiscard]] const QByteArray &encoded() const { return m_encoded; }

    /// The decoded picture, null when there is none or when the bytes are no picture. Kept after the first call.
    [[nodiscard]] QImage image() const;

    /// The bytes for the tank file. PNG bytes go as they are, other pictures as PNG; bytes that are no picture stay as
    /// they came, so that saving never loses what was in the file.
    [[nodiscard]] QByteArray fileData() const;

    friend bool operator==(const ItemImage &a, const ItemImage &b) { return a.m_encoded == b.m_encoded; }

private:
    mutable QByteArray m_encoded; ///< becomes PNG when it is first saved
    mutable bool m_converted = false;
    mutable QImage m_decoded;
    mutable bool m_looked = false;
};

} // namespace brinemark
