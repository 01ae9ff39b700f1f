// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

class QMimeData;

namespace brinemark
{

class ItemImage;

/// What a drag brings: the path of a local file or, without one, the encoded bytes of a picture.
struct DroppedPicture {
    QString path;
    QByteArray bytes;
};

/// Whether the data can hold a picture: a local file or an image. What it really is shows when it is read.
[[nodiscard]] bool mayHoldPicture(const QMimeData &data);
/// The first file, else the encoded bytes. They are taken as they came: the toolkit would decode them in any format.
[[nodiscard]] DroppedPicture droppedPicture(const QMimeData &data);

/// The picture as PNG data for a drag; it is converted only when somebody takes it.
[[nodiscard]] QMimeData *pictureMimeData(const ItemImage &picture);

} // namespace brinemark
