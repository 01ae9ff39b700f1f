// SPDX-License-Identifier: GPL-3.0-or-later

// The built program, started with the options that need no person.

#include "support/AppFixture.h"

#include <QProcess>

using namespace brinemark;
using namespace brinemark::test;

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nobodyIsAsked_data()
    {
        // file: below tests/data; said: texts that stand in the standard error
        test::columns<QString, QString, int, QStringList>("option", "file", "exitCode", "said");
        const QStringList damaged{text("ReadErrorMessage"), "could not be read"};
        row("older form", "--render", "tanks/older-six.xml", 0, QStringList{text("ConvertTitle")});
        row("damaged", "--render", "broken/missing-note-note.xml", 1, damaged);
        row("another kind of file", "--render", "broken/html.xml", 1, QStringList{"is not a tank file"});
        row("folder", "--render", "broken", 1, QStringList{"is not a tank file"});
        row("missing", "--render", "no-such-file.xml", 1, QStringList{"There is no file"});
        row("print damaged", "--print", "broken/missing-note-note.xml", 1, damaged);
        row("print missing", "--print", "no-such-file.xml", 1, QStringList{"There is no file"});
        row("print nothing", "--print", "", 1, QStringList{text("CommandLinePrintNeedsFile")});
        row("render nowhere", "--render=", "tanks/minimal.xml", 2, QStringList{text("CommandLineRenderNeedsPicture")});
        // "default:" marks the default file, which is opened when no file is named.
        row("default", "--render", "default:tanks/minimal.xml", 0, QStringList());
        row("missing default", "--render", "default:no-such-file.xml", 0, QStringList());
        row("damaged default", "--render", "default:broken/missing-note-note.xml", 1, damaged);
    }

    void nobodyIsAsked()
    {
        const auto [option, file, exitCode, said] =
            fetch<QString, QString, int, QStringList>("option", "file", "exitCode", "said");
        const QTemporaryDir folder;
        const QString picture = folder.filePath("picture.png");
        QStringList arguments{option};
        if (option == "--render")
            arguments << picture;
        const bool isDefault = file.startsWith("default:");
        const QString path = QStringLiteral(BRINEMARK_TEST_DATA "/") + file.mid(isDefault ? 8 : 0);
        Preferences::shared().set(preference::defaultFile, isDefault ? path : QString());
        QVERIFY(Preferences::shared().flush());
        const QByteArray preferences = bytesOf(Preferences::shared().path());
        if (!file.isEmpty() && !isDefault)
            arguments << path;
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "en_US.UTF-8");
        program.setProcessEnvironment(environment);
        program.start(BRINEMARK_PROGRAM, arguments);
        const bool ended = program.waitForFinished();
        program.kill();
        QVERIFY(ended);
        const QString errors = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2(program.exitStatus() == QProcess::NormalExit && program.exitCode() == exitCode, qPrintable(errors));
        for (const QString &sentence : said)
            QVERIFY2(errors.contains(sentence), qPrintable(errors));
        QCOMPARE(errors.contains("There is no file"), file.startsWith("no-such"));
        QCOMPARE(QFileInfo::exists(picture), exitCode == 0 && option == "--render");
        // Nothing else is written.
        QCOMPARE(bytesOf(Preferences::shared().path()), preferences);
        QVERIFY(!QFileInfo::exists(QFileInfo(path).path() + '/' + text("ConvertBackup") + ' ' +
                                   QFileInfo(path).fileName()));
    }
};

BRINEMARK_APP_TEST(TestCommandLine)
#include "tst_command_line.moc"
