// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Preferences.h"
#include "support/AppFixture.h"
#include "ui/pictures/PictureConverter.h"

#include <QBuffer>
#include <QRandomGenerator>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// Noise, so that its conversion takes a moment.
QByteArray jpegPicture()
{
    QImage image(1200, 1200, QImage::Format_RGB32);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(image.bits()), image.sizeInBytes() / 4);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG");
    return buffer.data();
}

/// Counts the progress sheets, and acts once when one appears.
class SheetWatcher : public QObject
{
public:
    explicit SheetWatcher(std::function<void(QDialog &)> act = {})
        : m_act(std::move(act))
    {
        qApp->installEventFilter(this);
    }
    int shown = 0;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Show && object->objectName() == "picturesSheet") {
            ++shown;
            QMetaObject::invokeMethod(
                object, [this, object] { m_act ? m_act(static_cast<QDialog &>(*object)) : void(); },
                Qt::QueuedConnection);
        }
        return false;
    }

private:
    std::function<void(QDialog &)> m_act;
};

} // namespace

class TestDocumentPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saving_data()
    {
        columns<Command, bool, bool>("command", "autoSave", "cancelled");
        for (const bool cancelled : {false, true}) {
            const auto add = [cancelled](const char *name, Command command, bool autoSave) {
                QTest::addRow("%s%s", name, cancelled ? ", cancelled" : "") << command << autoSave << cancelled;
            };
            add("save", Command::Save, false);
            add("new", Command::NewFile, false);
            add("quit", Command::Quit, false);
            add("quit with autosave", Command::Quit, true);
        }
    }
    void saving()
    {
        QFETCH(Command, command);
        QFETCH(bool, autoSave);
        QFETCH(bool, cancelled);
        Program program;
        const QString path = openWithPicture(program, jpegPicture());
        const QByteArray before = bytesOf(path);
        Preferences::shared().set(preference::autoSaveOnQuit, autoSave);
        AlertScript script;
        if (command != Command::Save && !autoSave)
            script.answerWith(AlertDefault);
        SheetWatcher watcher([&](QDialog &sheet) {
            QCOMPARE(bytesOf(path), before);
            if (command == Command::Save) // what comes meanwhile waits, and finds nothing unsaved afterwards
                program.commands().openFile(testFile("three-tanks.xml"));
            if (cancelled)
                sheet.findChild<QPushButton *>("cancelButton")->click();
        });
        bool done = false;
        const bool ended = Program::endsAfter([&] {
            program.controller().performCommand(command);
            done = QTest::qWaitFor([&] { return watcher.shown == 1 && !shownWindow<QDialog>("picturesSheet"); });
        });
        QVERIFY(done);
        QCOMPARE(ended, command == Command::Quit && !cancelled);
        QCOMPARE(script.titles.size(), command == Command::Save ? int(cancelled) : int(!autoSave));
        QCOMPARE(program.path() == path, cancelled || ended);
        QVERIFY(program.path() != path || program.document().isEdited() == cancelled);
        QCOMPARE(bytesOf(path) == before, cancelled);
        if (!cancelled)
            QVERIFY(pictureIn(path).startsWith("\x89PNG"));
    }

    void picturesOfAFileAreConvertedInTheBackground()
    {
        Program program;
        const QString path = openWithPicture(program, "no picture");
        program.controller().performCommand(Command::Save);
        QTRY_VERIFY(!program.document().isEdited());
        QCOMPARE(pictureIn(path), QByteArray("no picture"));

        QByteArray file = bytesOf(path);
        QVERIFY(writeFile(path, file.replace(QByteArray("no picture").toBase64(), jpegPicture().toBase64())));
        program.document().readTankFileWithPath({});
        program.document().readTankFileWithPath(path);
        const ItemImage picture = fish(program).itemImage;
        QVERIFY(!picture.isConverted());
        QTRY_VERIFY(picture.isConverted());
        SheetWatcher watcher;
        program.controller().performCommand(Command::Save);
        QCOMPARE(watcher.shown, 0);
        QCOMPARE(pictureIn(path), picture.encoded());
        QVERIFY(picture.encoded().startsWith("\x89PNG"));
    }

private:
    static ItemData &fish(Program &program)
    {
        return static_cast<ItemData &>(*program.tree().list().at(0)->fish()->recordAt(0));
    }
    /// Opens a file and gives its first fish a picture, which nothing converts; the document is edited then.
    static QString openWithPicture(Program &program, const QByteArray &picture)
    {
        const QString path = program.copyOf(testFile("every-field.xml"));
        program.start(path);
        fish(program).itemImage = ItemImage(picture);
        program.renameFirstTank("Edited");
        return path;
    }
    static QByteArray pictureIn(const QString &path)
    {
        TankList tanks;
        readTanks(readTankDictionary(path).root, path, tanks);
        return static_cast<ItemData &>(*tanks.at(0)->fish()->recordAt(0)).itemImage.encoded();
    }
};

BRINEMARK_APP_TEST(TestDocumentPictures)
#include "tst_document_pictures.moc"
