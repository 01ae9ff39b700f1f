// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/PictureDrop.h"

#include "model/ItemImage.h"
#include "model/pictures/PictureReader.h"
#include "model/pictures/PngConversion.h"

#include <QMimeData>
#include <QUrl>

namespace brinemark
{

namespace
{

constexpr QLatin1String pngType("image/png");

class PictureMimeData : public QMimeData
{
public:
    explicit PictureMimeData(const ItemImage &picture)
        : m_picture(picture)
    {
    }

    [[nodiscard]] QStringList formats() const override { return {pngType}; }
    [[nodiscard]] bool hasFormat(const QString &type) const override { return type == pngType; }

protected:
    [[nodiscard]] QVariant retrieveData(const QString &type, QMetaType) const override
    {
        if (type != pngType)
            return {};
        const QByteArray &bytes = m_picture.encoded();
        return pictureFormat(bytes) == "png" ? bytes : convertedToPng(bytes);
    }

private:
    ItemImage m_picture;
};

QString localFile(const QMimeData &data)
{
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return {};
}

/// The best of the encodings that are offered; empty when there is none.
QString encodedType(const QMimeData &data)
{
    const QStringList formats = data.formats();
    if (formats.contains(pngType)) // without loss
        return pngType;
    for (const QString &format : formats) {
        if (format.startsWith(QLatin1String("image/")))
            return format;
    }
    return {};
}

} // namespace

bool mayHoldPicture(const QMimeData &data)
{
    return !localFile(data).isEmpty() || !encodedType(data).isEmpty() || data.hasImage();
}

DroppedPicture droppedPicture(const QMimeData &data)
{
    if (const QString path = localFile(data); !path.isEmpty())
        return {path, {}};
    if (const QString type = encodedType(data); !type.isEmpty())
        return {{}, data.data(type)};
    return {{}, pngBytes(data.imageData().value<QImage>())};
}

QMimeData *pictureMimeData(const ItemImage &picture)
{
    return new PictureMimeData(picture);
}

} // namespace brinemark
