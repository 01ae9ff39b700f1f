// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

namespace brinemark
{

/// The picture of a livestock record, as encoded bytes. Copies share them, so that a picture is converted once for all.
/// Views show it through `PictureCache`, which decodes in the background and limits the memory.
class ItemImage
{
public:
    ItemImage() = default;
    /// Encoded bytes of any content, which is not examined further than to see whether it is PNG.
    explicit ItemImage(const QByteArray &encoded);
    /// Encodes the image as PNG; a null image gives no picture.
    [[nodiscard]] static ItemImage fromImage(const QImage &image);

    [[nodiscard]] bool isNone() const { return !m_shared; }
    [[nodiscard]] const QByteArray &encoded() const; ///< empty when there is none

    /// The same for all copies, and never used for another picture again; 0 for none.
    [[nodiscard]] quint64 identity() const { return m_shared ? m_shared->identity : 0; }
    [[nodiscard]] bool isUsedElsewhere() const { return m_shared.use_count() > 1; } ///< whether there are other copies

    /// Decodes the picture now; null when there is none or the bytes cannot be decoded.
    [[nodiscard]] QImage image() const;

    /// Whether the bytes are those that a tank file holds: PNG, or bytes that cannot be converted to it.
    [[nodiscard]] bool isConverted() const { return !m_shared || m_shared->converted; }
    /// The same picture as PNG. Empty bytes say that it cannot be converted: it then keeps the bytes that it has, so
    /// that saving never loses them.
    void setConverted(const QByteArray &png);

    friend bool operator==(const ItemImage &a, const ItemImage &b) { return a.encoded() == b.encoded(); }

private:
    struct Shared {
        QByteArray encoded;
        quint64 identity;
        bool converted;
    };
    std::shared_ptr<Shared> m_shared;
};

} // namespace brinemark
