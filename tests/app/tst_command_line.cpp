// SPDX-License-Identifier: GPL-3.0-or-later

// The built program, started with the options that need no person.

#include "support/AppFixture.h"
#include "support/DataRow.h"

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
        test::columns<QString, QString, bool, QStringList>("option", "file", "succeeds", "said");
        const QStringList damaged{text("ReadErrorMessage"), "could not be read"};
        row("older form", "--render", "tanks/older-six.xml", true, QStringList{text("ConvertTitle")});
        row("damaged", "--render", "broken/missing-note-note.xml", false, damaged);
        row("another kind of file", "--render", "broken/html.xml", false, QStringList{"is not a tank file"});
        row("folder", "--render", "broken", false, QStringList{"is not a tank file"});
        row("missing", "--render", "no-such-file.xml", false, QStringList{"There is no file"});
        row("print damaged", "--print", "broken/missing-note-note.xml", false, damaged);
        row("print missing", "--print", "no-such-file.xml", false, QStringList{"There is no file"});
        row("print nothing", "--print", "", false, QStringList{text("CommandLinePrintNeedsFile")});
    }

    void nobodyIsAsked()
    {
        QFETCH(QString, option);
        QFETCH(QString, file);
        QFETCH(bool, succeeds);
        QFETCH(QStringList, said);
        const QTemporaryDir folder;
        const QString picture = folder.filePath("picture.png");
        QStringList arguments{option};
        if (option == "--render")
            arguments << picture;
        if (!file.isEmpty())
            arguments << QStringLiteral(BRINEMARK_TEST_DATA "/") + file;
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "en_US.UTF-8");
        program.setProcessEnvironment(environment);
        program.start(BRINEMARK_PROGRAM, arguments);
        const bool ended = program.waitForFinished();
        program.kill();
        QVERIFY(ended);
        const QString errors = QString::fromUtf8(program.readAllStandardError());
        QVERIFY2(program.exitStatus() == QProcess::NormalExit && (program.exitCode() == 0) == succeeds,
                 qPrintable(errors));
        for (const QString &sentence : said)
            QVERIFY2(errors.contains(sentence), qPrintable(errors));
        QCOMPARE(errors.contains("There is no file"), file.startsWith("no-such"));
        QCOMPARE(QFileInfo::exists(picture), succeeds && option == "--render");
    }
};

BRINEMARK_APP_TEST(TestCommandLine)
#include "tst_command_line.moc"
