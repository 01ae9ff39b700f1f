// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/pictures/PictureReader.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <array>
#include <mutex>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace brinemark
{

namespace
{

struct PictureFormat {
    const char *name;           ///< as the decoder calls it
    QByteArrayView start;       ///< the first bytes of a file
    const char *patterns;       ///< of file names, separated by blanks
    QByteArrayView eighth = {}; ///< the bytes from the eighth on
};

constexpr std::array pictureFormats = {
    PictureFormat{"png", "\x89PNG\r\n\x1a\n", "*.png"},
    PictureFormat{"jpeg", "\xff\xd8\xff", "*.jpg *.jpeg"},
    PictureFormat{"webp", "RIFF", "*.webp", "WEBP"},
    PictureFormat{"gif", "GIF8", "*.gif"},
    PictureFormat{"bmp", "BM", "*.bmp"},
    PictureFormat{"tiff", {"II*\0", 4}, "*.tif *.tiff"},
    PictureFormat{"tiff", {"MM\0*", 4}, ""},
    PictureFormat{"tiff", {"II+\0", 4}, ""}, // the form for more than 4 GB, which small files may use as well
    PictureFormat{"tiff", {"MM\0+", 4}, ""},
};

/// An image reader that is bound to the format that the content shows, with the picture's header read.
class HeaderReader
{
public:
    explicit HeaderReader(const QByteArray &bytes)
    {
        static std::once_flag once;
        std::call_once(once, [] { QImageReader::setAllocationLimit(mostDecodedMegabytes); });
        const QByteArray format = pictureFormat(bytes);
        if (format.isEmpty()) {
            problem = PictureProblem::NotAPicture;
            return;
        }
        m_buffer.setData(bytes);
        m_buffer.open(QIODevice::ReadOnly);
        reader.setDevice(&m_buffer);
        reader.setAutoDetectImageFormat(false); // otherwise every plug-in is asked, also one of a vector format
        reader.setFormat(format);
        reader.setAutoTransform(true);
        size = reader.size();
        if (!size.isValid() || size.isEmpty())
            problem = PictureProblem::Damaged;
        else if (isTooLarge())
            problem = PictureProblem::TooLarge;
    }

    /// Whether turning the picture upright exchanges its width and height.
    [[nodiscard]] bool isTurned() const
    {
        return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    }

    QImageReader reader;
    QSize size; ///< before the picture is turned upright
    PictureProblem problem = PictureProblem::None;

private:
    [[nodiscard]] bool isTooLarge() const
    {
        const qint64 pixels = qint64(size.width()) * size.height();
        const QImage::Format format = reader.imageFormat();
        const qint64 bits = format == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(format).bitsPerPixel();
        return pixels > mostPicturePixels || pixels * bits / 8 >> 20 > mostDecodedMegabytes;
    }

    QBuffer m_buffer;
};

/// Opens regular files only. A pipe without a writer would otherwise block already in open().
bool openRegularFile(QFile &file)
{
    if (!QFileInfo(file.fileName()).isFile())
        return false;
#ifdef Q_OS_UNIX
    // The file may have been replaced since it was looked at, so the open one is looked at again.
    const int descriptor = ::open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    struct stat info = {};
    if (::fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode) &&
        file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
#else
    return file.open(QIODevice::ReadOnly);
#endif
}

} // namespace

QByteArray pictureFormat(const QByteArray &bytes)
{
    constexpr qsizetype eighth = 8;
    const QByteArrayView fromEighth = bytes.size() > eighth ? QByteArrayView(bytes).sliced(eighth) : QByteArrayView();
    for (const PictureFormat &format : pictureFormats) {
        if (bytes.startsWith(format.start) && fromEighth.startsWith(format.eighth))
            return format.name;
    }
    return {};
}

PictureHeader readPictureHeader(const QByteArray &bytes)
{
    const HeaderReader header(bytes);
    if (header.problem != PictureProblem::None)
        return {{}, header.problem};
    return {header.isTurned() ? header.size.transposed() : header.size, PictureProblem::None};
}

DecodedPicture readPicture(const QByteArray &bytes, const QSize &box)
{
    HeaderReader header(bytes);
    if (header.problem != PictureProblem::None)
        return {{}, header.problem};
    if (box.isValid()) {
        const QSize fitting = header.size.scaled(header.isTurned() ? box.transposed() : box, Qt::KeepAspectRatio);
        header.reader.setScaledSize(fitting.expandedTo({1, 1}));
    }
    const QImage image = header.reader.read();
    return {image, image.isNull() ? PictureProblem::Damaged : PictureProblem::None};
}

PictureFile readPictureFile(const QString &path)
{
    QFile file(path);
    if (!openRegularFile(file))
        return {{}, PictureProblem::NotReadable};
    if (file.size() > mostPictureFileBytes)
        return {{}, PictureProblem::TooLarge};
    const QByteArray bytes = file.read(mostPictureFileBytes);
    if (file.error() != QFileDevice::NoError)
        return {{}, PictureProblem::NotReadable};
    const PictureProblem problem = HeaderReader(bytes).problem;
    return {problem == PictureProblem::None ? bytes : QByteArray(), problem};
}

QStringList pictureFilePatterns()
{
    QStringList patterns;
    for (const PictureFormat &format : pictureFormats)
        patterns += QString::fromLatin1(format.patterns).split(u' ', Qt::SkipEmptyParts);
    return patterns;
}

} // namespace brinemark
