// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Files.h"
#include "support/TestProgram.h"

#include "model/ItemImage.h"
#include "model/pictures/PictureReader.h"
#include "model/pictures/PngConversion.h"

#include <QBuffer>
#include <QGuiApplication>

#include <sys/stat.h>

using namespace brinemark;

namespace
{

/// Three by two pixels.
QByteArray encodedPicture(const char *format)
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(QColor(200, 40, 40));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

QByteArray bitmapOf(qint32 width, qint32 height)
{
    QByteArray bytes = encodedPicture("bmp");
    bytes.replace(18, 4, reinterpret_cast<const char *>(&width), 4);
    return bytes.replace(22, 4, reinterpret_cast<const char *>(&height), 4);
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data()
    {
        test::columns<QByteArray, PictureProblem>("bytes", "problem");
        const auto add = [](const char *name, PictureProblem problem, const QByteArray &bytes) {
            QTest::newRow(name) << bytes << problem;
        };
        for (const char *format : {"png", "jpeg", "webp", "bmp", "tiff"})
            add(format, PictureProblem::None, encodedPicture(format));
        add("gif", PictureProblem::None,
            QByteArray::fromHex("4749463839610300020080"
                                "0000c82828000000"
                                "2c0000000003000200000202845f003b"));
        add("svg that shows a local file", PictureProblem::NotAPicture,
            "<svg xmlns='http://www.w3.org/2000/svg' width='3' height='2'><image href='/dev/zero'/></svg>");
        add("xpm", PictureProblem::NotAPicture, "/* XPM */ static char *x[] = {\"1 1 1 1\", \"a c red\", \"a\"};");
        add("pdf", PictureProblem::NotAPicture, "%PDF-1.4");
        add("other riff", PictureProblem::NotAPicture, QByteArray("RIFF\x10\0\0\0WAVEfmt ", 16));
        add("nothing", PictureProblem::NotAPicture, {});
        add("cut off", PictureProblem::Damaged, encodedPicture("png").chopped(30));
        add("too many pixels", PictureProblem::TooLarge, bitmapOf(12000, 12000));
    }
    void reading()
    {
        const auto [bytes, problem] = test::fetch<QByteArray, PictureProblem>("bytes", "problem");
        const bool readable = problem == PictureProblem::None;
        const DecodedPicture read = readPicture(bytes);
        QCOMPARE(read.problem, problem);
        QCOMPARE(read.image.isNull(), !readable);
        QCOMPARE(readPicture(bytes, {30, 30}).image.size(), readable ? QSize(30, 20) : QSize(0, 0));
        if (readable)
            QVERIFY(qAbs(read.image.pixelColor(1, 1).red() - 200) < 8 && read.image.pixelColor(1, 1).green() < 60);

        // The suffix says nothing.
        QVERIFY(test::writeFile(m_folder.filePath("picture.svg"), bytes));
        const PictureFile file = readPictureFile(m_folder.filePath("picture.svg"));
        const bool headerIsRead = readable || problem == PictureProblem::Damaged;
        QCOMPARE(file.problem, headerIsRead ? PictureProblem::None : problem);
        QCOMPARE(file.bytes, headerIsRead ? bytes : QByteArray());

        ItemImage picture(bytes);
        const ItemImage copy = picture;
        picture.setConverted(convertedToPng(bytes));
        QVERIFY(copy.isConverted());
        if (readable)
            QCOMPARE(copy.image().convertToFormat(read.image.format()), read.image);
        QCOMPARE(pictureFormat(copy.encoded()), readable ? QByteArray("png") : pictureFormat(bytes));
        if (!readable)
            QCOMPARE(copy.encoded(), bytes);
    }

    void picturesAreUpright()
    {
        // A JPEG with the mark of a camera that was held on its side.
        const QByteArray mark = QByteArray::fromHex("ffe10022"
                                                    "457869660000"
                                                    "49492a0008000000"
                                                    "0100"
                                                    "120103000100000006000000"
                                                    "00000000");
        const QByteArray turned = encodedPicture("jpeg").insert(2, mark);
        QCOMPARE(readPicture(turned).image.size(), QSize(2, 3));
        QCOMPARE(readPicture(turned, {30, 30}).image.size(), QSize(20, 30));
        QCOMPARE(QImage::fromData(convertedToPng(turned)).size(), QSize(2, 3));
    }

    void onlyRegularFilesWithinTheLimitAreRead()
    {
        const QString pipe = m_folder.filePath("pipe.png");
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString &path : {pipe, m_folder.path(), m_folder.filePath("none.png"), QStringLiteral("/dev/zero")})
            QCOMPARE(readPictureFile(path).problem, PictureProblem::NotReadable);
        QFile large(m_folder.filePath("large.png"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.write(encodedPicture("png")) > 0 &&
                large.resize(mostPictureFileBytes + 1));
        QCOMPARE(readPictureFile(large.fileName()).problem, PictureProblem::TooLarge);
    }

private:
    QTemporaryDir m_folder;
};

BRINEMARK_TEST(QGuiApplication, PicturesTest)
#include "tst_pictures.moc"
