// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus/MainMenuBar.h"
#include "base/Preferences.h"
#include "journals/views/NotificationController.h"
#include "support/AppFixture.h"
#include "ui/MainView.h"

#include <QDialog>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QUndoStack>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

AlertAnswer answerOf(const QString &word)
{
    return word == "save" ? AlertDefault : word == "cancel" ? AlertOther : AlertAlternate;
}

/// Answers panels written as "save:ok", "open:cancel"; "ok" chooses the file of that panel.
bool answerPanels(const QStringList &panels, const QString &saveTo, const QString &open)
{
    for (const QString &step : panels) {
        const bool ok = step.endsWith(u":ok");
        const bool save = step.startsWith(u"save");
        if (!answerPanel(save ? "savePanel" : "openPanel", ok ? (save ? saveTo : open) : QString()))
            return false;
    }
    return true;
}

bool panelShown()
{
    return shownWindow<QFileDialog>("openPanel") || shownWindow<QFileDialog>("savePanel");
}

/// Drags files onto the window and drops them there; returns whether it accepted the drag and the drop.
std::pair<bool, bool> dropOnWindow(MainWindow &window, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return {false, false};
    // The source proposes a move, as file managers do on one disk.
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    drop.ignore();
    QCoreApplication::sendEvent(&window, &drop);
    return {true, drop.isAccepted() && drop.dropAction() == Qt::CopyAction};
}

} // namespace

class TestDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newAndOpen_data()
    {
        // answer: "clean" for no edits, so no question; endsAt: "" for untitled; written: the file that got the edits
        columns<QString, bool, QString, QStringList>("command", "titled", "answer", "panels");
        columns<QString, bool, QString>("endsAt", "keepsEdits", "written");
        const auto row = [](const char *command, bool titled, const char *answer, const char *panels,
                            const char *endsAt, bool keepsEdits, const char *written) {
            QTest::addRow("%s, %s, %s, %s", command, titled ? "titled" : "untitled", answer, panels)
                << QString(command) << titled << QString(answer) << QString(panels).split(' ', Qt::SkipEmptyParts)
                << QString(endsAt) << keepsEdits << QString(written);
        };
        row("new", true, "clean", "", "", false, "");
        row("new", false, "clean", "", "", false, "");
        row("new", true, "save", "", "", false, "old");
        row("new", true, "don't save", "", "", false, "");
        row("new", true, "cancel", "", "old", true, "");
        row("new", false, "save", "save:ok", "", false, "saved");
        row("new", false, "save", "save:cancel", "", true, "");
        row("new", false, "don't save", "", "", false, "");
        row("new", false, "cancel", "", "", true, "");
        row("open", true, "clean", "open:ok", "other", false, "");
        row("open", true, "clean", "open:cancel", "old", false, "");
        row("open", true, "save", "open:ok", "other", false, "old");
        row("open", true, "don't save", "open:ok", "other", false, "");
        row("open", true, "cancel", "", "old", true, "");
        row("open", false, "save", "save:ok open:ok", "other", false, "saved");
        row("open", false, "save", "save:ok open:cancel", "saved", false, "saved");
        row("open", false, "save", "save:cancel", "", true, "");
    }

    void newAndOpen()
    {
        const auto [command, titled, answer, panels, endsAt, keepsEdits, written] =
            fetch<QString, bool, QString, QStringList, QString, bool, QString>("command", "titled", "answer", "panels",
                                                                               "endsAt", "keepsEdits", "written");
        Program program;
        const QMap<QString, QString> files{{"", {}},
                                           {"old", program.copyOf(testFile("every-field.xml"))},
                                           {"saved", program.filePath("saved.xml")},
                                           {"other", testFile("three-tanks.xml")}};
        program.start(titled ? files["old"] : QString());
        const QStringList namesBefore = program.tankNames();
        const bool edited = answer != "clean";
        if (edited)
            QVERIFY(program.renameFirstTank("Edited"));
        QCOMPARE(program.window().isWindowModified(), edited);

        AlertScript script;
        if (edited)
            script.answerWith(answerOf(answer));
        program.controller().performCommand(command == "new" ? Command::NewFile : Command::OpenFile);
        QTRY_COMPARE(script.titles, edited ? QStringList{text("SaveTitle")} : QStringList{});
        QVERIFY(answerPanels(panels, files["saved"], files["other"]));
        QVERIFY(!panelShown());

        QCOMPARE(program.path(), files[endsAt]);
        QCOMPARE(program.window().windowFilePath(), files[endsAt]);
        QCOMPARE(program.tankNames().contains("Edited"), keepsEdits || endsAt == "saved");
        if (keepsEdits)
            QVERIFY(program.document().isEdited() && program.window().isWindowModified());
        else if (!endsAt.isEmpty())
            QVERIFY(!program.document().isEdited() && !program.window().isWindowModified());
        else
            QCOMPARE(program.tankNames(), QStringList{text("NewTankName")});
        if (endsAt == "old" && !keepsEdits)
            QCOMPARE(program.tankNames(), namesBefore);
        QCOMPARE(tankNamesIn(files["old"]).contains("Edited"), written == "old");
        QCOMPARE(tankNamesIn(files["saved"]).contains("Edited"), written == "saved");
    }

    void cancelledOpenAfterDontSaveKeepsTheEditsUnmarked()
    {
        Program program;
        const QString path = program.startEdited("every-field.xml");
        const quint32 count = program.document().changeCount();
        AlertScript script{AlertAlternate};
        program.commands().openDataFile();
        QVERIFY(answerPanel("openPanel", {}));
        QCOMPARE(program.path(), path);
        QVERIFY(!program.window().isWindowModified());
        QCOMPARE(program.document().changeCount(), count);
        QCOMPARE(program.tankNames().first(), "Edited");
        // The next edit marks the window again.
        QVERIFY(program.renameFirstTank("Again"));
        QVERIFY(program.window().isWindowModified());
    }

    void saving()
    {
        Program program;
        program.start();
        QCOMPARE(program.path(), QString());
        QCOMPARE(program.window().windowTitle(), text("UntitledFileName") + "[*]");
        QVERIFY(program.renameFirstTank("First"));

        program.controller().performCommand(Command::Save);
        auto *panel = awaitWindow<QFileDialog>("savePanel");
        QVERIFY(panel);
        QCOMPARE(QFileInfo(panel->selectedFiles().value(0)).completeBaseName(),
                 QFileInfo(text("FileName")).completeBaseName());
        QVERIFY(answerPanel("savePanel", program.filePath("mine 2.5"))); // the extension is added
        const QString mine = program.filePath("mine 2.5.xml");
        QCOMPARE(program.path(), mine);
        QCOMPARE(program.window().windowTitle(), QString("mine 2.5.xml[*]"));
        QVERIFY(!program.document().isEdited());
        QCOMPARE(program.document().changeCount(), 0U);

        QVERIFY(program.renameFirstTank("Second"));
        program.controller().performCommand(Command::Save);
        QVERIFY(!panelShown());
        QVERIFY(!program.document().isEdited());
        QCOMPARE(tankNamesIn(mine), QStringList{"Second"});

        QVERIFY(program.renameFirstTank("Third"));
        program.controller().performCommand(Command::SaveAs);
        QVERIFY(answerPanel("savePanel", {}));
        QVERIFY(program.document().isEdited());
        QCOMPARE(program.path(), mine);
        program.controller().performCommand(Command::SaveAs);
        QVERIFY(answerPanel("savePanel", program.filePath("other.xml")));
        QCOMPARE(program.path(), program.filePath("other.xml"));
        QCOMPARE(tankNamesIn(mine), QStringList{"Second"});
        QCOMPARE(tankNamesIn(program.path()), QStringList{"Third"});
        QVERIFY(!program.document().isEdited());
    }

    /// Beside the open file; without one, where a panel last chose a file; else in the documents.
    void panelsStartBesideTheFile()
    {
        Program program;
        const QString documents = QDir::home().filePath("Documents");
        QVERIFY(QDir().mkpath(documents));
        program.start();
        const auto folderOf = [](const char *name) {
            auto *panel = awaitWindow<QFileDialog>(name);
            return panel && panel->testOption(QFileDialog::DontUseNativeDialog) ? panel->directory().path() : "none";
        };
        program.commands().openDataFile();
        QCOMPARE(folderOf("openPanel"), documents);
        const QString file = program.copyOf(testFile("minimal.xml"));
        QVERIFY(answerPanel("openPanel", file));
        QCOMPARE(program.path(), file);
        program.commands().saveAsCurrentFile();
        QCOMPARE(folderOf("savePanel"), QFileInfo(file).path());
        QVERIFY(answerPanel("savePanel", {}));
        program.commands().newDataFile();
        program.settle();
        QCOMPARE(program.path(), QString());
        program.commands().openDataFile();
        QCOMPARE(folderOf("openPanel"), QFileInfo(file).path());
        QVERIFY(answerPanel("openPanel", {}));
    }

    void makeDefaultBox()
    {
        Program program;
        program.start(testFile("minimal.xml"));
        Preferences &preferences = Preferences::shared();
        const auto boxOf = [](const char *panel) {
            return awaitWindow<QFileDialog>(panel)->findChild<QCheckBox *>("makeDefaultCheck")->isChecked();
        };
        program.commands().openDataFile();
        QVERIFY(!boxOf("openPanel"));
        QVERIFY(answerPanel("openPanel", {}));
        // Without a default file the save panel always ticks the box; unticked, it stores nothing.
        for (int i = 0; i < 2; ++i) {
            program.commands().saveAsCurrentFile();
            QVERIFY(boxOf("savePanel"));
            QVERIFY(answerPanel("savePanel", program.filePath(QString::number(i) + ".xml"), false));
            QVERIFY(!preferences.contains(preference::defaultFile));
        }
        program.commands().saveAsCurrentFile();
        QVERIFY(answerPanel("savePanel", program.filePath("default.xml")));
        QCOMPARE(preferences.value(preference::defaultFile), program.filePath("default.xml"));
        // With a default file both panels keep the box as it was left.
        program.commands().saveAsCurrentFile();
        QVERIFY(boxOf("savePanel"));
        QVERIFY(answerPanel("savePanel", {}, false));
        program.commands().openDataFile();
        QVERIFY(!boxOf("openPanel"));
        for (const char *noTankFile : {"/broken/expected.json", "/preferences/written-by-python.plist"}) {
            AlertScript told;
            QVERIFY(!answerPanel("openPanel", QStringLiteral(BRINEMARK_TEST_DATA) + noTankFile));
            QTRY_COMPARE(told.messages, QStringList{text("NotATankFileMessage")});
        }
        QVERIFY(answerPanel("openPanel", testFile("minimal.xml"), false));
        QCOMPARE(preferences.value(preference::defaultFile), program.filePath("default.xml"));
        program.commands().openDataFile();
        QVERIFY(answerPanel("openPanel", testFile("three-tanks.xml"), true));
        QCOMPARE(preferences.value(preference::defaultFile), testFile("three-tanks.xml"));
    }

    void revert()
    {
        Program program;
        program.startEdited();
        const quint32 count = program.document().changeCount();
        for (const AlertAnswer answer : {AlertDefault, AlertAlternate}) {
            AlertScript script{answer};
            program.controller().performCommand(Command::Revert);
            QCOMPARE(script.titles, QStringList{text("RevertTitle")});
            QVERIFY(script.messages.first().contains("tanks.xml"));
            QVERIFY(!script.messages.first().contains("^0"));
            QCOMPARE(program.tankNames(), QStringList{"Edited"});
            QCOMPARE(program.document().changeCount(), count);
            QVERIFY(program.document().isEdited());
        }
    }

    void quit_data()
    {
        // answer: "clean" for no edits, "none" for edits without a question
        columns<bool, bool, QString>("autoSave", "titled", "answer");
        columns<QStringList, bool, QString>("panels", "ends", "written");
        const auto row = [](bool autoSave, bool titled, const char *answer, const char *panels, bool ends,
                            const char *written) {
            QTest::addRow("%s, %s, %s, %s", autoSave ? "auto-save" : "ask", titled ? "titled" : "untitled", answer,
                          panels)
                << autoSave << titled << QString(answer) << QString(panels).split(' ', Qt::SkipEmptyParts) << ends
                << QString(written);
        };
        for (const bool autoSave : {false, true}) {
            row(autoSave, true, "clean", "", true, "");
            row(autoSave, false, "save", "save:ok", true, "saved");
            row(autoSave, false, "save", "save:cancel", false, "");
            row(autoSave, false, "don't save", "", true, "");
            row(autoSave, false, "cancel", "", false, "");
        }
        row(true, true, "none", "", true, "old");
        row(false, true, "save", "", true, "old");
        row(false, true, "don't save", "", true, "");
        row(false, true, "cancel", "", false, "");
    }

    void quit()
    {
        QFETCH(QStringList, panels);
        const auto [autoSave, titled, answer, ends, written] =
            fetch<bool, bool, QString, bool, QString>("autoSave", "titled", "answer", "ends", "written");
        Program program;
        Preferences::shared().set(preference::autoSaveOnQuit, autoSave);
        const QString old = program.copyOf(testFile("minimal.xml"));
        const QString saved = program.filePath("saved.xml");
        program.start(titled ? old : QString());
        if (answer != "clean")
            QVERIFY(program.renameFirstTank("Edited"));
        const bool asks = answer != "clean" && answer != "none";
        AlertScript script;
        if (asks)
            script.answerWith(answerOf(answer));
        const bool ended = program.endsAfter([&] {
            program.window().close(); // asks the same question as the Quit command
            QTRY_COMPARE(script.titles, asks ? QStringList{text("SaveQuitTitle")} : QStringList{});
            QVERIFY(answerPanels(panels, saved, {}));
        });
        QCOMPARE(ended, ends);
        QVERIFY(program.window().isVisible()); // closing it only asks to quit
        QCOMPARE(tankNamesIn(old).contains("Edited"), written == "old");
        QCOMPARE(tankNamesIn(saved).contains("Edited"), written == "saved");
        if (ends)
            return;
        // After a cancelled quit, the next one asks again.
        script.answerWith(AlertAlternate);
        QVERIFY(program.endsAfter([&] {
            program.controller().performCommand(Command::Quit);
            QTRY_COMPARE(script.titles.size(), 2);
        }));
    }

    void quitIsAskedOnce()
    {
        Program program;
        program.startEdited();
        program.delegate().terminate();
        program.delegate().terminate(); // while the question is on screen
        AlertScript script;
        QTRY_COMPARE(script.titles.size(), 1);
        QTest::qWait(50); // a second question would come up behind the first
        QCOMPARE(script.titles, QStringList{text("SaveQuitTitle")});
    }

    void changeCountWraps()
    {
        Program program;
        program.start(program.copyOf(testFile("minimal.xml")));
        program.controller().documentModifiedWithChange(false);
        QCOMPARE(program.document().changeCount(), 0xFFFFFFFFU);
        QVERIFY(program.window().isWindowModified());
        program.commands().saveCurrentFile();
        QCOMPARE(program.document().changeCount(), 0U);
        QVERIFY(!program.window().isWindowModified());
    }

    void openPathIsNotReadAgain()
    {
        Program program;
        const QString path = program.startEdited();
        QFile::remove(path);
        program.copyOf(testFile("three-tanks.xml"));
        const AlertScript script;
        QVERIFY(program.delegate().applicationOpenFile(path));
        QCOMPARE(program.tankNames(), QStringList{"Edited"});
        QVERIFY(program.document().isEdited());
        QVERIFY(script.titles.isEmpty());
    }

    void dropping()
    {
        Program program;
        const QString first = program.copyOf(testFile("minimal.xml"), "first.xml");
        const QString second = program.copyOf(testFile("three-tanks.xml"), "second.xml");
        const QString other = program.filePath("list.xml");
        QVERIFY(writeFile(other, "<html><body/></html>"));
        program.start(first);
        const auto url = [](const QString &path) { return QUrl::fromLocalFile(path); };
        const auto refused = std::pair(false, false);
        QCOMPARE(dropOnWindow(program.window(), {url(other)}), refused);
        QCOMPARE(dropOnWindow(program.window(), {url(program.filePath("none.xml"))}), refused);
        QCOMPARE(dropOnWindow(program.window(), {url(second), url(first)}), refused);
        QCOMPARE(dropOnWindow(program.window(), {QUrl("https://www.brinemark.example/tanks.xml")}), refused);
        QCOMPARE(program.path(), first);
        {
            QDialog sheet(&program.window());
            sheet.open();
            QCOMPARE(dropOnWindow(program.window(), {url(second)}), refused);
        }
        QCOMPARE(dropOnWindow(program.window(), {url(second)}), std::pair(true, true));
        QCOMPARE(program.path(), first); // it is opened after the drop, for which the source waits
        QTRY_COMPARE(program.path(), second);

        QVERIFY(program.renameFirstTank("Edited"));
        AlertScript script{AlertOther, AlertAlternate};
        QVERIFY(dropOnWindow(program.window(), {url(first)}).second);
        QTRY_COMPARE(script.titles, QStringList{text("SaveTitle")});
        QCOMPARE(program.path(), second);
        QVERIFY(program.document().isEdited());
        QVERIFY(dropOnWindow(program.window(), {url(first)}).second);
        QTRY_COMPARE(program.path(), first);
        QVERIFY(!program.document().isEdited());
    }

    void recentFiles()
    {
        Program program;
        QVERIFY(QDir().mkpath(program.filePath("a/reef")) && QDir().mkpath(program.filePath("b/reef")));
        const QString first = program.copyOf(testFile("minimal.xml"), "a/reef/tanks.xml");
        const QString second = program.copyOf(testFile("three-tanks.xml"), "b/reef/tanks.xml");
        const QString gone = program.copyOf(testFile("minimal.xml"), "R&D.xml");
        program.start(first);
        for (const QString &path : {program.filePath("broken.xml"), second, gone, first, second})
            program.document().readTankFileWithPath(path); // the first of them cannot be read
        MainMenuBar &menus = program.window().menus();
        auto *menu = qobject_cast<QMenu *>(menus.action(Command::ClearRecent)->associatedObjects().value(0));
        const auto choices = [menu] {
            Q_EMIT menu->aboutToShow();
            QStringList titles;
            for (const QAction *item : menu->actions()) {
                if (item->isVisible() && !item->isSeparator())
                    titles << item->text();
            }
            return titles;
        };
        QVERIFY(QFile::remove(gone));
        QCOMPARE(choices(), (QStringList{"&1  tanks.xml – b/reef", "&2  tanks.xml – a/reef", "&3  R&&D.xml",
                                         text("MenuRecentClear")}));
        QCOMPARE(menu->actions().at(1)->toolTip(), first);
        QVERIFY(!menu->actions().at(2)->isEnabled());

        QVERIFY(program.renameFirstTank("Edited"));
        AlertScript script{AlertOther, AlertAlternate};
        menu->actions().at(1)->trigger();
        QTRY_COMPARE(script.titles, QStringList{text("SaveTitle")});
        QCOMPARE(program.path(), second);
        menu->actions().at(1)->trigger();
        QTRY_COMPARE(program.path(), first);
        QVERIFY(choices().at(0).endsWith("a/reef") && !program.document().isEdited());

        // Between the opening of the menu and the choice the file is replaced, then removed.
        script.titles.clear();
        QVERIFY(writeFile(second, "<html><body/></html>"));
        menu->actions().at(1)->trigger();
        QTRY_COMPARE(script.titles.size(), 1);
        QVERIFY(QFile::remove(second));
        menu->actions().at(1)->trigger();
        QTRY_COMPARE(script.titles, (QStringList{fillPlaceholders(text("NotATankFileTitle"), {"tanks.xml"}),
                                                 fillPlaceholders(text("FileGoneTitle"), {"tanks.xml"})}));
        QCOMPARE(program.path(), first);

        for (int i = 0; i < 12; ++i)
            QCOMPARE(program.document().writeTankFileWithPath(program.filePath(QString::number(i) + ".xml")),
                     TankDocument::WriteOutcome::Written);
        QVERIFY(Preferences::shared().flush());
        const QStringList kept = Preferences(Preferences::shared().path()).value(preference::recentFiles, {});
        QCOMPARE(kept.size(), 10);
        QCOMPARE(kept.first(), program.filePath("11.xml"));
        menus.action(Command::ClearRecent)->trigger();
        QCOMPARE(choices(), (QStringList{text("MenuRecentNone"), text("MenuRecentClear")}));
        QVERIFY(!menus.action(Command::ClearRecent)->isEnabled());
    }

    void anotherFileDropsUndoAndNotices()
    {
        Program program;
        program.startEdited();
        program.commands().saveCurrentFile();
        const auto activity = std::make_shared<ScheduleData>();
        NotificationController::sharedInstance().setNotificationData(activity);
        NotificationController::sharedInstance().notePanel()->show();
        QVERIFY(program.delegate().undoManager().canUndo() && program.delegate().applicationDockMenu());
        QVERIFY(program.document().readTankFileWithPath(testFile("three-tanks.xml")));
        QVERIFY(!program.delegate().undoManager().canUndo());
        QVERIFY(!NotificationController::sharedInstance().isVisible());
        QVERIFY(!program.delegate().applicationDockMenu());
        // Overdue activities of the new file are shown after reading it.
        Preferences::shared().set(preference::activityOverdue, true);
        const QString overdue = program.filePath("overdue.xml");
        QVERIFY(writeFile(overdue, bytesOf(testFile("schedule-auto-off.xml")).replace("2031-", "2026-")));
        QVERIFY(program.document().readTankFileWithPath(overdue));
        QVERIFY(NotificationController::sharedInstance().isVisible());
    }

    void quitCancelledAtTheOverwriteQuestion()
    {
        Program program;
        Preferences::shared().set(preference::autoSaveOnQuit, true);
        const QString path = program.startEdited();
        QVERIFY(writeFile(path, "theirs"));
        AlertScript script{AlertOther, AlertOther};
        for (int i = 1; i <= 2; ++i) { // the second quit asks again
            QVERIFY(!program.endsAfter([&] { program.delegate().terminate(); }));
            QCOMPARE(script.titles.size(), i);
        }
        QCOMPARE(bytesOf(path), "theirs");
    }

    void cancelledOpenRequestIsForgotten()
    {
        Program program;
        program.start();
        QVERIFY(program.renameFirstTank("Edited"));
        AlertScript script{AlertDefault, AlertAlternate};
        QVERIFY(program.delegate().applicationOpenFile(testFile("minimal.xml")));
        QVERIFY(answerPanel("savePanel", {}));
        QCOMPARE(program.path(), QString());
        // The Open command now shows its panel, instead of opening the file of the cancelled request.
        program.controller().performCommand(Command::OpenFile);
        QVERIFY(answerPanel("openPanel", testFile("three-tanks.xml")));
        QCOMPARE(program.path(), testFile("three-tanks.xml"));
    }

    void openRequestRefusesOtherFiles()
    {
        Program program;
        program.start(testFile("minimal.xml"));
        const QString link = program.filePath("link.xml");
        QVERIFY(QFile::link(testFile("three-tanks.xml"), link));
        QVERIFY(writeFile(program.filePath("tanks.txt"), bytesOf(testFile("three-tanks.xml"))));
        const AlertScript script;
        for (const QString &path : {program.filePath("none.xml"), program.filePath("tanks.txt"), program.filePath(""),
                                    QStringLiteral(BRINEMARK_TEST_DATA "/plist/everything.plist"),
                                    QStringLiteral(BRINEMARK_TEST_DATA "/broken/html-well-formed.xml")}) {
            QVERIFY2(!program.delegate().applicationOpenFile(path), qPrintable(path));
            QCOMPARE(program.path(), testFile("minimal.xml"));
        }
        QVERIFY(script.titles.isEmpty());
        QVERIFY(program.delegate().applicationOpenFile(link));
        QCOMPARE(program.tankNames().size(), 3);
    }
};

BRINEMARK_APP_TEST(TestDocuments)
#include "tst_documents.moc"
