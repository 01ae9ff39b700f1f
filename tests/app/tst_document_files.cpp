// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Preferences.h"
#include "base/Product.h"
#include "base/saving/KeptCopies.h"
#include "support/AppFixture.h"
#include "support/FailingFileCalls.h"
#include "support/Python.h"
#include "ui/MainView.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUndoStack>

using namespace brinemark;
using namespace brinemark::test;

// The document with files that are broken, old, changed by another program, or not writable.

class TestDocumentFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unreadableFileChangesOnlyTheTitle()
    {
        Program program;
        program.start(testFile("three-tanks.xml"));
        const QStringList names = program.tankNames();
        const AlertScript script;
        for (const QString &name : {QStringLiteral("missing.xml"), QStringLiteral("garbage.xml")}) {
            const QString path = program.filePath(name);
            if (name == "garbage.xml")
                QVERIFY(writeFile(path, "no property list"));
            QVERIFY(!program.document().readTankFileWithPath(path));
            QCOMPARE(program.path(), path);
            QCOMPARE(program.window().windowTitle(), name + "[*]");
            QCOMPARE(program.tankNames(), names);
            QVERIFY(program.tree().currentTank());
        }
        QVERIFY(script.titles.isEmpty());
        QCOMPARE(program.beeps, 0);
    }

    void readErrorKeepsTheTanksBefore_data()
    {
        QTest::addColumn<int>("view"); // the view on screen while the file is read
        for (int view = 1; view < mainViewCount; ++view)
            QTest::addRow("view %d", view) << view;
    }

    void readErrorKeepsTheTanksBefore()
    {
        QFETCH(int, view);
        Program program;
        program.start(testFile("every-field.xml"));
        for (int row = 0; int(program.controller().currentView()) != view && row < 100; ++row)
            program.tree().selectRow(row);
        QCOMPARE(int(program.controller().currentView()), view);
        QStringList shown;
        onNextAlert([&](AlertDialog &alert) {
            shown << alert.title() << alert.message() << program.tree().tankList()->currentIndex().data().toString();
            alert.reject();
        });
        QVERIFY(!program.document().readTankFileWithPath(BRINEMARK_TEST_DATA "/broken/tank-integer.xml"));
        QCOMPARE(program.tankNames().size(), 1);
        // The first tank is shown, also behind the report, and none of the old ones.
        QCOMPARE(shown, (QStringList{text("Error"), text("ReadErrorMessage"), program.tankNames().first()}));
        QCOMPARE(program.beeps, 1);
        QCOMPARE(program.controller().currentView(), MainView::Tank);
        QCOMPARE(program.tree().currentTank(), program.tree().list().at(0).get());
        QVERIFY(!program.document().isEdited() && program.document().changeCount() == 0);
        QVERIFY(!program.delegate().undoManager().canUndo());
    }

    void olderFile()
    {
        Program program;
        const QString older = program.copyOf(testFile("older-six.xml"));
        const QString backup = program.filePath(text("ConvertBackup") + " tanks.xml");
        program.start();
        const auto open = [&](AlertAnswer answer) {
            AlertScript script{answer};
            const bool read = program.document().readTankFileWithPath(older);
            return read && script.titles == QStringList{text("ConvertTitle")} && program.path() == older &&
                   !program.document().isEdited();
        };
        QVERIFY(open(AlertAlternate));
        QCOMPARE(program.beeps, 1);
        QVERIFY(!QFile::exists(backup));
        program.document().readTankFileWithPath({});
        program.settle();
        QVERIFY(open(AlertDefault));
        QCOMPARE(bytesOf(backup), bytesOf(testFile("older-six.xml")));
        QCOMPARE(QFile::permissions(backup), QFile::permissions(older));
        // An existing backup is not replaced.
        QVERIFY(writeFile(backup, "kept"));
        program.document().readTankFileWithPath({});
        program.settle();
        QVERIFY(open(AlertDefault));
        QCOMPARE(bytesOf(backup), QByteArray("kept"));
        // Saving writes the current form, so reading it again asks nothing.
        program.commands().saveCurrentFile();
        program.document().readTankFileWithPath({});
        program.settle();
        const AlertScript script;
        QVERIFY(program.document().readTankFileWithPath(older));
        QVERIFY(script.titles.isEmpty());
    }

    void failingWrite()
    {
        Program program;
        const QString path = program.startEdited();
        const QByteArray before = bytesOf(path);
        const QString folder = program.filePath("folder.xml");
        QVERIFY(QDir().mkpath(folder + "/inside"));
        AlertScript script;
        QCOMPARE(program.document().writeTankFileWithPath(folder), TankDocument::WriteOutcome::Failed);
        QCOMPARE(script.titles, QStringList{text("Error")});
        QCOMPARE(script.messages, QStringList{text("SaveErrorMessage") + ' ' + text("SaveProblemNotAFile") + ' ' +
                                              text("SaveLeftOldFile") + "\n\n" + text("SaveErrorStillOpen")});
        QVERIFY(QFileInfo(folder + "/inside").isDir());
        QCOMPARE(program.path(), path);
        QCOMPARE(bytesOf(path), before);
        QVERIFY(program.document().isEdited() && program.document().changeCount() > 0);
        // The next save does not take what an unconfirmed one wrote for another program's change.
        {
            const FailingFileCalls calls({.name = "folder"});
            program.commands().saveCurrentFile();
        }
        QVERIFY(script.messages.last().contains(text("SaveLeftNewFile")));
        QVERIFY(program.document().isEdited());
        program.commands().saveCurrentFile();
        QCOMPARE(script.titles.size(), 2);
        QVERIFY(!program.document().isEdited());
        // A file that could not be written does not become the default file.
        const FailingFileCalls calls({.name = "fsync", .error = ENOSPC});
        program.commands().saveAsCurrentFile(); // its box is ticked while there is no default file
        QVERIFY(answerPanel("savePanel", program.filePath("elsewhere.xml")));
        QTRY_COMPARE(script.titles.size(), 3);
        QVERIFY(Preferences::shared().value(preference::defaultFile, QString()).isEmpty());
    }

    void failedSaveOnTheWay_data()
    {
        columns<QString, QString, QString, bool>("command", "answer", "endsAt", "edited");
        for (const QString command : {"new", "open", "hand over", "quit", "auto-save"}) {
            const QString next = command == "new"                              ? ""
                                 : command == "open" || command == "hand over" ? "other"
                                                                               : "ended";
            for (const QString answer : {"cancel", "elsewhere", "elsewhere, cancel", "discard"}) {
                const bool goesOn = answer == "elsewhere" || answer == "discard";
                row(qPrintable(command + ", " + answer), command, answer, goesOn ? next : QString("old"), !goesOn);
            }
        }
        row("open, discard, cancel", QString("open"), QString("discard, cancel"), QString("old"), true);
    }

    /// A failed save never discards changes without consent, and the command goes on once they are saved elsewhere.
    void failedSaveOnTheWay()
    {
        QFETCH(QString, command);
        QFETCH(QString, answer);
        QFETCH(QString, endsAt);
        QFETCH(bool, edited);
        Program program;
        Preferences::shared().set(preference::autoSaveOnQuit, command == "auto-save");
        const QMap<QString, QString> paths{{"", ""},
                                           {"old", program.copyOf(testFile("minimal.xml"))},
                                           {"other", program.copyOf(testFile("three-tanks.xml"), "other.xml")},
                                           {"saved", program.filePath("saved.xml")}};
        const QByteArray before = bytesOf(paths["old"]);
        program.start(paths["old"]);
        QVERIFY(program.renameFirstTank("Edited"));
        const FailingFileCalls calls({.name = "fsync", .error = ENOSPC});
        AlertScript script;
        if (command != "auto-save")
            script.answerWith(AlertDefault);
        if (answer != "cancel") // is the answer of Escape
            script.answerWith(answer.startsWith("discard") ? AlertAlternate : AlertOther);
        const bool ended = program.endsAfter([&] {
            if (command == "hand over")
                program.delegate().applicationOpenFile(paths["other"]);
            else
                program.controller().performCommand(command == "new"    ? Command::NewFile
                                                    : command == "open" ? Command::OpenFile
                                                                        : Command::Quit);
            QTRY_VERIFY(script.titles.contains(text("Error")));
            if (answer.startsWith("elsewhere"))
                QVERIFY(answerPanel("savePanel", answer == "elsewhere" ? paths["saved"] : QString()));
            if (command == "open" && (endsAt == "other" || answer == "discard, cancel"))
                QVERIFY(answerPanel("openPanel", paths[endsAt == "other" ? "other" : ""]));
        });
        QCOMPARE(script.titles.size(), command == "auto-save" ? 1 : 2);
        const QString message = script.messages.last();
        QVERIFY(message.contains(text("SaveProblemNoSpace")) && !message.contains(text("SaveErrorStillOpen")));
        QCOMPARE(ended, endsAt == "ended");
        QCOMPARE(bytesOf(paths["old"]), before);
        QCOMPARE(tankNamesIn(paths["saved"]), answer == "elsewhere" ? QStringList{"Edited"} : QStringList());
        if (ended)
            return;
        QCOMPARE(program.path(), paths[endsAt]);
        QVERIFY(program.document().isEdited() || !edited);
        QCOMPARE(program.tankNames().contains("Edited"), edited);
    }

    /// A copy that a killed process left is shown at the next start, and at no later one.
    void reportsKeptCopiesOnce()
    {
        QVERIFY(writeFile(keptCopiesFolder() + "/unfinished tanks.xml", "old"));
        for (const QStringList &titles : {QStringList{text("KeptCopiesTitle")}, QStringList()}) {
            AlertScript script;
            Program program;
            program.start(testFile("minimal.xml"));
            QTest::qWait(20);
            QCOMPARE(script.titles, titles);
            QVERIFY(titles.isEmpty() || script.messages.first().endsWith(keptCopiesFolder() + "/tanks.xml"));
            QCOMPARE(bytesOf(keptCopiesFolder() + "/tanks.xml"), QByteArray("old"));
        }
    }

    void changedByAnother_data()
    {
        // theirFile: the tank in the other program's file afterwards
        columns<int, QString, bool>("answer", "theirFile", "edited");
        QTest::newRow("overwrite") << int(AlertAlternate) << "Edited" << false;
        QTest::newRow("elsewhere") << int(AlertDefault) << "Theirs" << false;
        QTest::newRow("cancel") << int(AlertOther) << "Theirs" << true;
    }

    void changedByAnother()
    {
        const auto [answer, theirFile, edited] = fetch<int, QString, bool>("answer", "theirFile", "edited");
        Program program;
        const QString path = program.copyOf(testFile("minimal.xml"));
        program.start(path);
        const QString name = program.tankNames().first();
        QVERIFY(program.renameFirstTank("Edited"));
        QVERIFY(writeFile(path, bytesOf(path).replace(name.toUtf8(), "Theirs")));
        AlertScript script{AlertAnswer(answer)};
        program.commands().saveCurrentFile();
        QCOMPARE(script.titles, QStringList{text("ChangedOnDiskTitle")});
        if (answer == AlertDefault) {
            QVERIFY(answerPanel("savePanel", program.filePath("mine.xml")));
            QCOMPARE(tankNamesIn(program.filePath("mine.xml")), QStringList{"Edited"});
        }
        QCOMPARE(tankNamesIn(path), QStringList{theirFile});
        QCOMPARE(program.document().isEdited(), edited);
        // The program knows what it has just written, so the next save asks nothing.
        if (!edited)
            program.commands().saveCurrentFile();
        QCOMPARE(script.titles.size(), 1);
    }

    void partlyReadFileIsNotOverwritten_data()
    {
        QTest::addColumn<QByteArray>("content");
        row("no property list", QByteArray("garbage"));
        row("a tank that cannot be built", bytesOf(QStringLiteral(BRINEMARK_TEST_DATA "/broken/tank-integer.xml")));
        row("a tank that is left out", bytesOf(testFile("three-tanks-no-attributes.xml")));
        row("lists that are left out", bytesOf(testFile("older-seven.xml")));
    }

    void partlyReadFileIsNotOverwritten()
    {
        QFETCH(QByteArray, content);
        Program program;
        program.start(testFile("three-tanks.xml"));
        const QString path = program.filePath("partly.xml");
        QVERIFY(writeFile(path, content));
        {
            const AlertScript report;
            program.document().readTankFileWithPath(path);
            // Escape answers the question about an older file by keeping a copy.
            QCOMPARE(bytesOf(program.filePath(text("ConvertBackup") + " partly.xml")),
                     report.titles.contains(text("ConvertTitle")) ? content : QByteArray());
        }
        AlertScript script{AlertOther, AlertAlternate};
        program.commands().saveCurrentFile();
        QCOMPARE(script.titles, QStringList{text("NotFullyReadTitle")});
        QCOMPARE(bytesOf(path), content);
        program.commands().saveCurrentFile(); // answered with overwrite
        QVERIFY(bytesOf(path) != content);
        program.commands().saveCurrentFile();
        QCOMPARE(script.titles.size(), 2);
    }

    void changedByAnotherAndChosenAgain()
    {
        Program program;
        const QString path = program.startEdited();
        QVERIFY(writeFile(path, "theirs"));
        AlertScript script{AlertDefault};
        program.commands().saveAsCurrentFile();
        auto *panel = awaitWindow<QFileDialog>("savePanel");
        QVERIFY(panel);
        panel->setOption(QFileDialog::DontConfirmOverwrite);
        QVERIFY(!answerPanel("savePanel", path)); // the save panel comes up again
        QCOMPARE(script.titles, QStringList{text("ChangedOnDiskTitle")});
        QVERIFY(answerPanel("savePanel", program.filePath("mine.XML")));
        QCOMPARE(tankNamesIn(program.filePath("mine.XML")), QStringList{"Edited"});
        QCOMPARE(bytesOf(path), "theirs");
    }

    void brokenFiles()
    {
        const QString folder = QStringLiteral(BRINEMARK_TEST_DATA "/broken/");
        const QJsonObject all = QJsonDocument::fromJson(bytesOf(folder + "expected.json")).object();
        QVERIFY(all.size() > 200);
        Program program;
        program.start();
        for (auto it = all.begin(); it != all.end(); ++it) {
            const QJsonObject expected = it.value().toObject();
            if (expected.contains(u"generate"))
                continue; // the tests of the file reader generate and read this file
            const QByteArray context = it.key().toUtf8();
            const QString outcome = expected.value(u"outcome").toString();
            program.document().readTankFileWithPath(testFile("minimal.xml"));
            QStringList titles;
            if (expected.value(u"question").toBool())
                titles << text("ConvertTitle");
            if (outcome == "read-error")
                titles << text("Error");
            AlertScript script;
            if (expected.value(u"question").toBool())
                script.answerWith(AlertAlternate); // no backup copies among the tests' files
            const bool read = program.document().readTankFileWithPath(folder + it.key());
            QCoreApplication::processEvents();
            QVERIFY2(read == (outcome == "reads"), context);
            QVERIFY2(script.titles == titles, context + ": " + script.titles.join(", ").toUtf8());
            const QStringList names = program.tankNames();
            QVERIFY2(expected.value(u"tanks").isString() ? names == tankNamesIn(testFile("minimal.xml"))
                                                         : names.size() == expected.value(u"tanks").toInt(),
                     context);
            program.tree().selectRow(0);
        }
    }

    void roundTrip()
    {
        Program program;
        const QString sample = QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml");
        program.start(sample);
        program.tree().selectRow(4);
        QCOMPARE(program.tree().selectedRow(), 4);
        program.commands().saveAsCurrentFile();
        const QString saved = program.filePath("saved.xml");
        QVERIFY(answerPanel("savePanel", saved));

        const PythonRun python =
            runPython({QStringLiteral(BRINEMARK_SOURCE_DIR "/tests/model/compare-tank-files"), sample, saved});
        const QString version = QString::number(product::packedVersion(product::shortVersion()));
        QCOMPARE(QString::fromUtf8(python.output).trimmed(),
                 "/FileAttributes/SelectedRow: 0 became 4\n/FileAttributes/bundleVersion: 16777216 became " + version);
        QCOMPARE(python.errors, QByteArray());
    }
};

BRINEMARK_APP_TEST(TestDocumentFiles)
#include "tst_document_files.moc"
