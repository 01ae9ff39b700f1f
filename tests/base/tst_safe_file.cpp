// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/SafeFile.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace brinemark;
using brinemark::test::bytesOf;
using brinemark::test::writeFile;

namespace
{

void setModified(const QString &path, const QDateTime &when)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(when, QFileDevice::FileModificationTime));
}

} // namespace

/// Saving keeps the old file until the new one is complete, and a file changed by somebody else is recognised.
class TestSafeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void writesAndReads()
    {
        const QByteArray bytes("one\0two\r\n", 9);
        for (const QByteArray &content : {bytes, QByteArray(3'000'000, 'x'), QByteArray()}) {
            const WriteResult written = writeFileSafely(path("tanks.xml"), content);
            QVERIFY2(written.ok, qPrintable(written.error));
            const FileContent read = readFile(path("tanks.xml"));
            QVERIFY(read.ok);
            QCOMPARE(read.bytes, content);
            QVERIFY(!changedOnDisk(path("tanks.xml"), written.stamp));
            QVERIFY(!changedOnDisk(path("tanks.xml"), read.stamp));
            QCOMPARE(entries(), QStringList{"tanks.xml"});
        }
    }

    void keepsPermissions()
    {
        QVERIFY(writeFile(path("tanks.xml"), "old"));
        const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QVERIFY(QFile::setPermissions(path("tanks.xml"), permissions));
        const QFile::Permissions before = QFile::permissions(path("tanks.xml"));
        QVERIFY(writeFileSafely(path("tanks.xml"), "new").ok);
        QCOMPARE(QFile::permissions(path("tanks.xml")), before);
    }

    void replacesTheTargetOfALink()
    {
#ifdef Q_OS_UNIX
        QVERIFY(writeFile(path("real.xml"), "old"));
        QVERIFY(QFile::link("real.xml", path("link.xml")));
        QVERIFY(QFile::link(path("link.xml"), path("outer.xml")));
        QVERIFY(QFile::link("later.xml", path("dangling.xml")));
        for (const auto &[link, target] :
             {std::pair("outer.xml", "real.xml"), std::pair("dangling.xml", "later.xml")}) {
            const WriteResult written = writeFileSafely(path(link), "new");
            QVERIFY2(written.ok, qPrintable(written.error));
            QVERIFY(QFileInfo(path(link)).isSymLink() && !QFileInfo(path(target)).isSymLink());
            QCOMPARE(bytesOf(path(target)), QByteArray("new"));
            QVERIFY(!changedOnDisk(path(link), written.stamp));
        }
#endif
    }

    void fullDiskLeavesTheOldFile()
    {
#ifdef Q_OS_UNIX
        QVERIFY(writeFile(path("tanks.xml"), "old and good"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Cannot write")));
        WriteResult written;
        {
            const brinemark::test::FullDisk disk;
            written = writeFileSafely(path("tanks.xml"), QByteArray(1'000'000, 'x'));
        }
        QVERIFY(!written.ok);
        QVERIFY(!written.error.isEmpty());
        QCOMPARE(bytesOf(path("tanks.xml")), QByteArray("old and good"));
        QCOMPARE(entries(), QStringList{"tanks.xml"});
#endif
    }

    void cleanErrors_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("a folder") << "%1";
        QTest::newRow("in a missing folder") << "%1/missing/tanks.xml";
        QTest::newRow("no name") << "";
#ifdef Q_OS_LINUX
        QTest::newRow("where nobody can write") << "/proc/tanks.xml";
        QTest::newRow("a pipe") << "%1/pipe";
#endif
    }

    void cleanErrors()
    {
        QFETCH(QString, target);
        QVERIFY(writeFile(path("file"), "in the way"));
#ifdef Q_OS_UNIX
        QCOMPARE(mkfifo(qPrintable(path("pipe")), 0600), 0);
#endif
        const QStringList before = entries();
        if (target.contains("%1"))
            target = target.arg(m_folder->path());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Cannot write")));
        const WriteResult written = writeFileSafely(target, "new");
        QVERIFY(!written.ok);
        QVERIFY(!written.error.isEmpty());
        QVERIFY(!written.stamp.isKnown());
        QCOMPARE(entries(), before);
        QVERIFY(!changedOnDisk(target, FileStamp()));
        QVERIFY(!readFile(target).ok);
    }

    void noticesChanges_data()
    {
        test::columns<QByteArray, int, bool>("content", "secondsLater", "changed");
        QTest::newRow("untouched") << QByteArray("old") << 0 << false;
        QTest::newRow("only touched") << QByteArray("old") << 60 << false;
        QTest::newRow("same size, other content") << QByteArray("new") << 60 << true;
        QTest::newRow("longer, time kept") << QByteArray("older") << 0 << true;
        QTest::newRow("same size, older copy put back") << QByteArray("new") << -60 << true;
    }

    void noticesChanges()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, secondsLater);
        QFETCH(bool, changed);
        const QString file = path("tanks.xml");
        QVERIFY(writeFileSafely(file, "old").ok);
        const FileStamp stamp = readFile(file).stamp;
        QVERIFY(stamp.isKnown());

        QVERIFY(writeFile(file, content));
        setModified(file, stamp.modified.addSecs(secondsLater));
        QCOMPARE(changedOnDisk(file, stamp), changed);
        // Without a stamp every file counts as changed.
        QVERIFY(changedOnDisk(file, FileStamp()));

        QVERIFY(QFile::remove(file));
        QVERIFY(!changedOnDisk(file, stamp));
    }

private:
    [[nodiscard]] QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }
    [[nodiscard]] QStringList entries() const
    {
        return test::entriesOf(m_folder->path());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

BRINEMARK_TEST(QCoreApplication, TestSafeFile)
#include "tst_safe_file.moc"
