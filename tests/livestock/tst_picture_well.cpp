// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/PictureScaling.h"
#include "livestock/views/CustomFishImageView.h"
#include "livestock/views/PictureDrop.h"
#include "livestock/views/PictureWell.h"
#include "model/pictures/PictureReader.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QBuffer>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace brinemark;

namespace
{

QByteArray encoded(const QSize &size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

/// What a file manager sends, which offers to move the file as well.
bool drop(PictureWell &well, const QMimeData &data)
{
    QWidget *target = well.imageView()->viewport();
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter({5, 5}, offered, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event({5, 5}, offered, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &event);
    well.finishReading();
    return event.dropAction() == Qt::CopyAction;
}

} // namespace

class TestPictureWell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { PictureCache::destroyShared(); }

    void scaling_data()
    {
        test::columns<QSize, QSize, QSize>("image", "well", "scaled");
        const QSize small(200, 200);
        QTest::newRow("fits") << QSize(100, 50) << small << QSize(100, 50);
        QTest::newRow("exactly") << small << small << small;
        QTest::newRow("wide") << QSize(800, 600) << small << QSize(200, 150);
        QTest::newRow("high") << QSize(600, 801) << small << QSize(149, 200);
        QTest::newRow("a hair") << QSize(10000, 1) << small << QSize(200, 1);
        QTest::newRow("the reader rounds up") << QSize(4001, 3000) << pictureWell << QSize(1600, 1199);
    }
    void scaling()
    {
        QFETCH(QSize, image);
        QFETCH(QSize, well);
        QTEST(scaledToWell(image, well), "scaled");
        if (well != pictureWell)
            return;
        const ItemImage shrunk = imageForWell(encoded(image, "jpeg"));
        QTEST(shrunk.image().size(), "scaled");
        QVERIFY(shrunk.isConverted());
    }

    void drops_data()
    {
        test::columns<QString, QByteArray, int>("type", "bytes", "problem"); // the type of data, else a file's name
        const auto add = [](const char *row, const char *type, const QByteArray &bytes, PictureProblem problem) {
            QTest::newRow(row) << QString::fromLatin1(type) << bytes << int(problem);
        };
        const QByteArray png = encoded({20, 10}, "png");
        const QByteArray jpeg = encoded({20, 10}, "jpeg");
        add("file", "a picture.png", png, PictureProblem::None);
        add("file with another's suffix", "b.png", jpeg, PictureProblem::None);
        add("data", "image/jpeg", jpeg, PictureProblem::None);
        add("folder", "folder/", {}, PictureProblem::NotReadable);
        add("cut off", "cut.png", png.chopped(30), PictureProblem::Damaged);
        add("cut off, as data", "image/png", png.chopped(30), PictureProblem::Damaged);
        add("text", "text.png", "no picture", PictureProblem::NotAPicture);
        add("vector picture", "image/svg+xml", "<svg xmlns='http://www.w3.org/2000/svg'/>",
            PictureProblem::NotAPicture);
        QByteArray huge = jpeg;
        huge.replace(huge.indexOf("\xff\xc0") + 5, 4, "\xea\x60\xea\x60"); // height and width in the frame header
        add("60,000 x 60,000", "huge.jpeg", huge, PictureProblem::TooLarge);
    }
    void drops()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, bytes);
        QFETCH(int, problem);
        QMimeData data;
        const QString path = m_home.filePath(type);
        if (type.startsWith(QLatin1String("image/")))
            data.setData(type, bytes);
        else if (type.endsWith(u'/'))
            QVERIFY(QDir().mkpath(path));
        else
            QVERIFY(test::writeFile(path, bytes));
        if (data.formats().isEmpty())
            data.setUrls({QUrl(QStringLiteral("https://example.com/a.png")), QUrl::fromLocalFile(path)});
        PictureWell well;
        const QSignalSpy taken(&well, &PictureWell::pictureDropped);
        const QSignalSpy refused(&well, &PictureWell::refused);
        QVERIFY(drop(well, data));
        const bool good = PictureProblem(problem) == PictureProblem::None;
        QCOMPARE(taken.size(), good ? 1 : 0);
        QCOMPARE(refused.size(), good ? 0 : 1);
        QVERIFY(well.picture().isNone()); // only its owner sets it
        if (good)                         // a picture that fits keeps its bytes
            QCOMPARE(taken.first().first().value<ItemImage>().encoded(), bytes);
        else
            QCOMPARE(int(refused.first().first().value<PictureProblem>()), problem);
    }

    void whatIsNoPictureIsNotAccepted()
    {
        QMimeData data;
        data.setUrls({QUrl(QStringLiteral("https://example.com/a.png"))});
        data.setText(QStringLiteral("a.png"));
        PictureWell well;
        QVERIFY(!drop(well, data));
    }

    void zoomAndEmptyWell()
    {
        PictureWell well;
        well.resize(300, 200);
        well.show();
        auto *empty = well.findChild<QWidget *>(QStringLiteral("fishSearchView"));
        QVERIFY(empty->isVisible());
        well.setPicture(ItemImage(encoded({900, 900}, "jpeg")));
        QVERIFY(!empty->isVisible());
        CustomFishImageView &view = *well.imageView();
        PictureCache::sharedInstance().finishRequests();
        QCOMPARE(view.pictureRect(), QRectF(50, 0, 200, 200));
        const QPoint corner(60, 10);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, corner);
        QCOMPARE(view.scale(), 1.0);
        // The point that was clicked, 45 pixels from the picture's corner, stays under the pointer.
        QVERIFY((view.pictureRect().topLeft() + QPointF(45, 45) - corner).manhattanLength() <= 30);
        PictureCache::sharedInstance().finishRequests();
        QCOMPARE(view.viewport()->grab().toImage().pixelColor(150, 100).red(), 254);
        QTest::keyClick(&view, Qt::Key_0);
        QVERIFY(view.isFitted());
        QTest::keyClick(&view, Qt::Key_Plus);
        QCOMPARE(view.scale(), 1.25 * 200 / 900);
        QTest::keyClick(&view, Qt::Key_Minus);
        QVERIFY(view.isFitted());

        const std::unique_ptr<QMimeData> dragged(pictureMimeData(well.picture()));
        QCOMPARE(pictureFormat(dragged->data(QStringLiteral("image/png"))), "png");
        well.setPicture({});
        QVERIFY(empty->isVisible());
    }

private:
    test::TestHome m_home;
};

BRINEMARK_TEST(QApplication, TestPictureWell)
#include "tst_picture_well.moc"
