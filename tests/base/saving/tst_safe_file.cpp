// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/saving/KeptCopies.h"
#include "base/saving/SafeFile.h"
#include "support/FailingFileCalls.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/TestProgram.h"

#include <QLoggingCategory>
#include <QScopeGuard>

#include <cstring>
#include <tuple>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

using namespace brinemark;
using brinemark::test::bytesOf;
using brinemark::test::writeFile;

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
        const auto systemsCalls = qScopeGuard([] { FileCalls::setCurrent(FileCalls::system()); });
        for (const QByteArray &content : {bytes, QByteArray(3'000'000, 'x'), QByteArray(), bytes}) {
            const WriteResult written = writeFileSafely(path("tanks.xml"), content);
            QVERIFY2(written.ok, qPrintable(written.error));
            const FileContent read = readFile(path("tanks.xml"));
            QVERIFY(read.ok);
            QCOMPARE(read.bytes, content);
            QVERIFY(!changedOnDisk(path("tanks.xml"), written.stamp));
            QVERIFY(!changedOnDisk(path("tanks.xml"), read.stamp));
            QCOMPARE(entries(), QStringList{"tanks.xml"});
            if (content.isEmpty())
                FileCalls::setCurrent(nullptr); // as on a platform without these calls
        }
    }

    void failingCalls_data()
    {
        test::columns<QString, bool, bool, bool>("call", "writesOver", "onward", "takesPlace");
        for (const bool onward : {false, true}) {
            for (const char *call : {"create", "write", "fsync", "close", "rename", "folder"})
                QTest::addRow("%s%s", call, onward ? " onward" : "") << QString(call) << false << onward << false;
            for (const char *call :
                 {"create", "open", "overwrite", "read", "write", "truncate", "fsync", "close", "folder"})
                QTest::addRow("%s%s, written over", call, onward ? " onward" : "")
                    << QString(call) << true << onward << false;
        }
        QTest::newRow("rename that takes place") << "rename" << false << false << true;
    }

    /// Whichever call fails: the file is whole, the result says which content it has, and nothing else is left.
    void failingCalls()
    {
        const auto [call, writesOver, onward, takesPlace] =
            test::fetch<QString, bool, bool, bool>("call", "writesOver", "onward", "takesPlace");
        const QString file = path("tanks.xml");
        const QByteArray newBytes = "the new content, which is longer";
        QLoggingCategory::setFilterRules(QStringLiteral("brinemark.file=false"));
        const auto allMessages = qScopeGuard([] { QLoggingCategory::setFilterRules({}); });
        int nth = 0;
        int reported = 0;
        for (bool failed = true; failed;) {
            ++nth;
            const QByteArray context = "call " + QByteArray::number(nth);
            QVERIFY(writeFile(file, "old and good"));
            const FileStamp before = FileStamp::of(file);
            WriteResult written;
            {
                const test::FailingFileCalls calls(
                    {call, nth, ENOSPC, onward, takesPlace, writesOver ? m_folder->path() : QString()});
                written = writeFileSafely(file, newBytes);
                failed = calls.hasFailed();
            }
            reported += written.ok ? 0 : 1;
            // Closing a file that was only read, or is already synced, may fail without harm.
            QVERIFY2(written.ok == !failed || takesPlace || call == "close", context);
            const bool isDamaged = written.onDisk == WriteResult::OnDisk::Damaged;
            const bool isOld = written.onDisk == WriteResult::OnDisk::Old;
            QVERIFY2(!isDamaged || (writesOver && onward), context);
            QVERIFY2(bytesOf(isDamaged ? written.keptCopy : file) == (isOld || isDamaged ? "old and good" : newBytes),
                     context);
            QVERIFY2(!changedOnDisk(file, isOld ? before : written.stamp), context);
            QVERIFY2(isDamaged == !written.keptCopy.isEmpty() && (!isDamaged || QFile::remove(written.keptCopy)),
                     context);
            QVERIFY2(written.ok || (written.error.endsWith(": " + QString::fromLocal8Bit(std::strerror(ENOSPC))) &&
                                    (written.problem == SaveProblem::NoSpace ||
                                     (writesOver && written.problem == SaveProblem::NoSafeCopy))),
                     context);
            QCOMPARE(entries(), QStringList{"tanks.xml"});
            QCOMPARE(test::entriesOf(keptCopiesFolder()), QStringList());
        }
        QVERIFY(takesPlace ? nth > 1 : reported > 0);
    }

    void keepsAttributes()
    {
        const QString file = path("tanks.xml");
        QVERIFY(writeFile(file, "old"));
        QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
#ifdef Q_OS_LINUX
        QVERIFY(geteuid() != 0 || chown(qPrintable(file), 4711, 4712) == 0);
        const bool hasAttributes = setxattr(qPrintable(file), "user.place", "shelf", 5, 0) == 0;
#endif
        const auto attributes = [&] {
            const QFileInfo info(file);
            return std::tuple(info.permissions(), info.ownerId(), info.groupId());
        };
        const auto before = attributes();
        QVERIFY(writeFileSafely(file, "new").ok);
        QVERIFY(attributes() == before);
#ifdef Q_OS_LINUX
        char value[6] = "";
        QVERIFY(!hasAttributes || getxattr(qPrintable(file), "user.place", value, 5) == 5);
        QCOMPARE(QByteArray(value), QByteArray(hasAttributes ? "shelf" : ""));
#endif
    }

    /// What a killed save left is removed by the next one; what a running one writes, and other people's files, stay.
    void removesAbandonedFiles()
    {
        const QString start = path(".brinemark-saving-");
        const QString abandoned = start + "0123456789abcdef";
        const QString locked = start + "00000000000000aa";
        for (const QString &name : {abandoned, locked, start + "notes", start + "0123456789abcdef~"})
            QVERIFY(writeFile(name, "half"));
        QVERIFY(QDir().mkpath(start + "00000000000000bb"));
        QVERIFY(QFile::link("tanks.xml", start + "00000000000000cc"));
        FileCalls &calls = *FileCalls::system();
        OpenFile other(calls);
        QCOMPARE(calls.open(locked, FileCalls::Mode::Overwrite, other.descriptor), 0);
        QCOMPARE(calls.lock(other.descriptor), 0);
        const QStringList all = entries();
        QVERIFY(writeFileSafely(path("tanks.xml"), "new").ok);
        QVERIFY(!QFile::exists(abandoned));
        QCOMPARE(entries().size(), all.size()); // one less, and the saved file
        QCOMPARE(other.close(), 0);
        removeAbandonedTemporaryFiles(path("tanks.xml"));
        QVERIFY(!QFile::exists(locked));
        QCOMPARE(entries().size(), all.size() - 1);
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
        const auto [content, secondsLater, changed] =
            test::fetch<QByteArray, int, bool>("content", "secondsLater", "changed");
        const QString file = path("tanks.xml");
        QVERIFY(writeFileSafely(file, "old").ok);
        const FileStamp stamp = readFile(file).stamp;
        QVERIFY(stamp.isKnown());

        QVERIFY(writeFile(file, content));
        QFile touched(file);
        QVERIFY(touched.open(QIODevice::ReadWrite));
        QVERIFY(touched.setFileTime(stamp.modified.addSecs(secondsLater), QFileDevice::FileModificationTime));
        touched.close();
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
