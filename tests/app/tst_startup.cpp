// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/preferences/CalendarNames.h"
#include "app/preferences/PrefsController.h"
#include "app/startup/StartupSteps.h"
#include "base/Product.h"
#include "calc/views/ConverterController.h"
#include "journals/views/NotificationController.h"
#include "online/views/EListSignupController.h"
#include "support/AppFixture.h"
#include "support/Python.h"
#include "ui/AlertPanelDontAskAgain.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QScopeGuard>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QUndoStack>
#include <QUrlQuery>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

QByteArray propertyList(const QByteArray &content)
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + content + "</dict></plist>";
}

QByteArray plistText(const char *key, const char *value)
{
    return QByteArray("<key>") + key + "</key><string>" + value + "</string>";
}

/// The preferences on disk as Python reads them: "name type value", by name.
QStringList preferencesOnDisk()
{
    const PythonRun python = runPython({"-c",
                                        "import plistlib, sys\n"
                                        "for item in sorted(plistlib.load(open(sys.argv[1], 'rb')).items()):\n"
                                        "    print(item[0], type(item[1]).__name__, item[1])",
                                        Preferences::shared().path()});
    return QString::fromUtf8(python.output + python.errors).split('\n', Qt::SkipEmptyParts);
}

QPushButton *button(QWidget *window, const char *name)
{
    return window->findChild<QPushButton *>(QLatin1String(name));
}

/// Calls undo and redo again while it is being undone or redone.
struct NestedCommand : QUndoCommand {
    void undo() override
    {
        ShoalwatchDelegate::sharedInstance().undoChange();
        ShoalwatchDelegate::sharedInstance().redoChange();
    }
    void redo() override { ShoalwatchDelegate::sharedInstance().redoChange(); }
};

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstRun()
    {
        const QStringList general{"activityOverdue bool True", "autoSaveOnQuit bool False",
                                  "convertVisible bool False"};
        const QStringList update{"UpdateAuto bool True", "UpdateFrequency int 604800",
                                 "UpdateLastChecked datetime 0001-01-01 00:00:00"};
        {
            Program program(Program::NeverRan);
            program.delegate().applicationDidFinishLaunching();
            QCOMPARE(preferencesOnDisk(), update + general + QStringList{"defaultFile str "});
            const auto *signUp = shownWindow<QDialog>("signupWindow");
            QVERIFY(signUp && signUp->parentWidget() == &program.window()); // so that it stays above the main window
            QCOMPARE(NotificationController::sharedInstance().notePanel()->pos(), QPoint(20, 200));
            const QRect screen = program.window().screen()->availableGeometry();
            const QPoint off = program.window().frameGeometry().center() - screen.center();
            QVERIFY(std::abs(off.x()) <= 2 && (std::abs(off.y()) <= 2 || program.window().height() >= screen.height()));

            // The rest of the start-up removes the empty default file and stores the version.
            QVERIFY(Preferences::shared().flush());
            const QString version = QString::number(product::packedVersion(product::shortVersion()));
            QStringList afterwards = update + general + QStringList{"bundleVersion int " + version};
            afterwards.sort();
            QCOMPARE(preferencesOnDisk(), afterwards);
        }
        Preferences::shared().set(preference::updateAuto, false);
        Preferences::shared().set(preference::bundleVersion, 16777216);
        Preferences::shared().set(preference::activityOverdue, false);
        Program program(Program::KeepPreferences);
        program.start();
        QVERIFY(!shownWindow<QDialog>("signupWindow"));
        QCOMPARE(Preferences::shared().value(preference::activityOverdue), false);
        QCOMPARE(Preferences::shared().value(preference::bundleVersion),
                 qint64(product::packedVersion(product::shortVersion())));
    }

    void defaultFile_data()
    {
        columns<QString, bool>("stored", "kept"); // a file name in the program's folder
        QTest::newRow("empty") << "" << false;
        QTest::newRow("missing") << "none.xml" << false;
        QTest::newRow("folder") << "folder.xml" << false;
        QTest::newRow("good") << "good.xml" << true;
        QTest::newRow("unreadable") << "garbage.xml" << true;
    }

    void defaultFile()
    {
        const auto [stored, kept] = fetch<QString, bool>("stored", "kept");
        Program program;
        QVERIFY(QDir().mkpath(program.filePath("folder.xml")));
        QVERIFY(writeFile(program.filePath("garbage.xml"), "garbage"));
        program.copyOf(testFile("three-tanks.xml"), "good.xml");
        const QString path = stored.isEmpty() ? QString() : program.filePath(stored);
        Preferences::shared().set(preference::defaultFile, path);
        const AlertScript script;
        program.delegate().applicationDidFinishLaunching();
        QCOMPARE(Preferences::shared().value(preference::defaultFile), kept ? std::optional(path) : std::nullopt);
        QCOMPARE(program.path(), kept ? path : QString());
        QVERIFY(program.window().isVisible());
        if (stored == "good.xml") {
            QCOMPARE(program.tankNames().size(), 3);
        } else {
            // An empty tree gets a first tank, selected and expanded, and the tank sheet opens.
            QCOMPARE(program.tankNames(), QStringList{text("NewTankName")});
            QVERIFY(program.tree().currentSelectedItem().isTank());
            QVERIFY(program.tree().isExpanded(program.tree().currentSelectedItem()));
            auto *sheet = awaitWindow("tankSheet");
            QVERIFY(sheet);
            QVERIFY(!button(sheet, "cancelButton")->isVisible());
        }
        QVERIFY(script.titles.isEmpty());
    }

    /// Also on the first run, after the sign-up window, which stands in front of the main window.
    void unwritablePreferencesAreReportedOnce()
    {
        // A file where the folder should be: even the superuser cannot write below it.
        const QString folder = QFileInfo(Preferences::shared().path()).path();
        QVERIFY(QDir(folder).removeRecursively() && writeFile(folder, "in the way"));
        const auto writableAgain = qScopeGuard([&] {
            QFile::remove(folder);
            QVERIFY(Preferences::shared().flush());
        });
        Program program(Program::KeepPreferences);
        Preferences::shared().remove(preference::autoSaveOnQuit);
        program.start(testFile("minimal.xml"));
        auto *signUp = shownWindow<QDialog>("signupWindow");
        QVERIFY(signUp && signUp->isActiveWindow() && !shownAlert());
        signUp->reject();
        QVERIFY(shownAlert());
        QCOMPARE(shownAlert()->title(), text("PreferencesNotSavedTitle"));
        QVERIFY(shownAlert()->message().contains(Preferences::shared().path()));
        QVERIFY(pressAlertButton("defaultButton"));
        Preferences::shared().set(preference::updateAuto, false);
        QCoreApplication::processEvents();
        QVERIFY(!shownAlert());
    }

    /// The calculator is shown again, and a file that is handed over comes before the default file.
    void storedPreferencesAreFollowed()
    {
        Program program;
        Preferences::shared().set(preference::defaultFile, testFile("three-tanks.xml"));
        Preferences::shared().set(preference::convertVisible, true);
        program.start(testFile("minimal.xml"));
        QCOMPARE(program.path(), testFile("minimal.xml"));
        QCOMPARE(program.tankNames().size(), 1);
        QVERIFY(ConverterController::sharedInstance().isVisible());
    }

    void leftOverFolder()
    {
        for (const QString kind : {"folder", "file", "link to a folder"}) {
            Program program;
            const QString leftover = startup::applicationSupportFolder() + '/' + text("FolderName");
            QVERIFY(leftover.startsWith(QDir::homePath()));
            const QString target = program.filePath("target");
            QVERIFY(writeFile(target + "/inside/file", "kept"));
            QVERIFY(QDir().mkpath(startup::applicationSupportFolder()));
            if (kind == "folder")
                QVERIFY(writeFile(leftover + "/deep/inside", "gone"));
            else if (kind == "file")
                QVERIFY(writeFile(leftover, "kept"));
            else
                QVERIFY(QFile::link(target, leftover));
            program.start();
            QCOMPARE(QFileInfo::exists(leftover) || QFileInfo(leftover).isSymLink(), kind == "file");
            QVERIFY(QFileInfo::exists(target + "/inside/file"));
            QFile::remove(leftover);
        }
    }

    void undoManager()
    {
        Program program;
        program.start(testFile("minimal.xml"));
        QUndoStack &undo = program.delegate().undoManager();
        for (int i = 0; i < 25; ++i)
            undo.push(new NestedCommand);
        QCOMPARE(undo.count(), 20);
        program.delegate().undoChange();
        QCOMPARE(undo.index(), 19);
        program.delegate().redoChange();
        QCOMPARE(undo.index(), 20);
    }

    void dockMenu()
    {
        Program program;
        ShoalwatchDelegate &delegate = program.delegate();
        QVERIFY(!delegate.applicationDockMenu());
        QMenu &menu = delegate.dockMenu();
        QCOMPARE(menu.actions().size(), 1);
        QCOMPARE(menu.actions().first()->text(), text("DockMenuTitle"));
        QVERIFY(!menu.actions().first()->isEnabled());
        QVERIFY(!delegate.applicationDockMenu());
        menu.addAction("First");
        QVERIFY(!delegate.applicationDockMenu());
        menu.addAction("Second");
        QCOMPARE(delegate.applicationDockMenu(), &menu);
        delegate.buildDockMenu();
        QVERIFY(!delegate.applicationDockMenu());
        QCOMPARE(delegate.dockMenu().actions().size(), 1);
    }

    void mailAndWebAddresses()
    {
        Program program;
        program.start(testFile("minimal.xml"));
        program.controller().performCommand(Command::Feedback);
        program.controller().performCommand(Command::ProductPage);
        const QStringList expected{QString("mailto:") + product::supportAddress + "?subject=Brinemark%20" +
                                       product::buildVersion() + "%20feedback",
                                   product::productPage};
        QCOMPARE(program.openedUrls, expected);
    }

    void reopening()
    {
        Program program;
        program.start(testFile("minimal.xml"));
        QVERIFY(program.delegate().applicationShouldHandleReopen(false));
        program.window().showMinimized();
        QVERIFY(!program.delegate().applicationShouldHandleReopen(true));
        QVERIFY(!program.window().isMinimized());

        // Becoming active reloads the tree and counts no change.
        Tank &tank = *program.tree().list().at(0);
        QVERIFY(!program.tree().isExpanded(TreeItem(tank)));
        tank.tankExpanded = true;
        program.delegate().applicationWillBecomeActive();
        QVERIFY(program.tree().isExpanded(TreeItem(tank)));
        QVERIFY(!program.document().isEdited());
    }

    void preferencesWindow()
    {
        Program program;
        program.start(testFile("minimal.xml"));
        Preferences &stored = Preferences::shared();
        stored.set(preference::activityOverdue, true);
        program.controller().performCommand(Command::Preferences);
        QDialog *window = PrefsController::sharedInstance().prefWindow();
        QVERIFY(window->isVisible());
        const auto control = [&](const char *name) {
            return window->findChild<QAbstractButton *>(QLatin1String(name));
        };
        auto *path = window->findChild<QLineEdit *>("defaultFilePath");
        QVERIFY(control("overdueCheck")->isChecked());
        QVERIFY(control("autoSaveAsk")->isChecked());
        QCOMPARE(path->text(), text("NoneSelected"));
        QVERIFY(path->isReadOnly());

        control("overdueCheck")->click();
        QCOMPARE(stored.value(preference::activityOverdue), false);
        control("autoSaveOn")->click();
        QCOMPARE(stored.value(preference::autoSaveOnQuit), true);
        for (const QString &chosen : {QString(), testFile("three-tanks.xml")}) {
            control("defaultFileSetButton")->click();
            QVERIFY(awaitWindow<QFileDialog>("openPanel"));
            QVERIFY(!shownWindow<QFileDialog>("openPanel")->findChild<QCheckBox *>("makeDefaultCheck"));
            QVERIFY(answerPanel("openPanel", chosen));
            QCOMPARE(stored.value(preference::defaultFile, QString()), chosen);
        }
        QCOMPARE(path->text(), QDir::toNativeSeparators(testFile("three-tanks.xml")));
        QCOMPARE(program.path(), testFile("minimal.xml"));

        control("defaultFileClearButton")->click();
        QVERIFY(!stored.contains(preference::defaultFile));
        QCOMPARE(path->text(), text("NoneSelected"));
        QVERIFY(!control("defaultFileClearButton")->isEnabled());

        // When shown again, the window reads the stored values.
        QVERIFY(!control("showMessagesButton")->isEnabled());
        AlertPanelDontAskAgain::setValue(1, "first");
        AlertPanelDontAskAgain::setValue(0, "second");
        window->close();
        stored.set(preference::activityOverdue, true);
        stored.set(preference::autoSaveOnQuit, true);
        program.controller().performCommand(Command::Preferences);
        QVERIFY(control("overdueCheck")->isChecked() && control("autoSaveOn")->isChecked());
        control("autoSaveAsk")->click();
        QCOMPARE(stored.value(preference::autoSaveOnQuit), false);
        QCOMPARE(window->findChild<QLabel *>("hiddenMessages")->text(), QString("2"));
        control("showMessagesButton")->click();
        QVERIFY(AlertPanelDontAskAgain::willShowPanelForIdentifier("first"));
        QVERIFY(AlertPanelDontAskAgain::willShowPanelForIdentifier("second"));
        QVERIFY(!control("showMessagesButton")->isEnabled());
    }

    void calendarPopup()
    {
        Program program;
        const QByteArray dataFolders = qgetenv("XDG_DATA_DIRS");
        qputenv("XDG_DATA_DIRS", program.filePath("data").toLocal8Bit());
        const auto restore = qScopeGuard([&] { qputenv("XDG_DATA_DIRS", dataFolders); });
        const QString sources =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/evolution/sources/";
        program.start(testFile("minimal.xml"));
        PrefsController &prefs = PrefsController::sharedInstance();
        auto *popup = prefs.prefWindow()->findChild<QComboBox *>("iCalPopup");
        const auto shown = [&] {
            prefs.display();
            QStringList names;
            for (int i = 0; i < popup->count(); ++i)
                names << popup->itemText(i);
            return std::tuple(popup->isEnabled(), names, popup->currentText());
        };
        const auto expected = [](bool enabled, const QStringList &names, const QString &current) {
            return std::tuple(enabled, names, current);
        };
        QVERIFY(shown() == expected(false, {}, {})); // no calendar application
        QVERIFY(writeFile(program.filePath("data/applications/mimeinfo.cache"),
                          "[MIME Cache]\ntext/calendar=calendar.desktop;\n"));
        QVERIFY(shown() == expected(false, {}, {})); // an application, but no list of calendars
        const auto source = [&](const char *file, const char *name, const char *backend, const char *enabled = "true") {
            return writeFile(sources + file, QByteArray("[Data Source]\nDisplayName=") + name + "\nEnabled=" + enabled +
                                                 "\n[Calendar]\nBackendName=" + backend + "\n");
        };
        QVERIFY(source("c.source", "Subscribed", "webcal") && source("d.source", "Off", "local", "false"));
        QVERIFY(shown() == expected(true, {}, {})); // no writable calendar
        QVERIFY(source("a.source", "Home", "local") && source("b.source", "Aquarium", "local"));
        QVERIFY(shown() == expected(true, {"Home", "Aquarium"}, "Home"));
        QCOMPARE(Preferences::shared().value(preference::calName), "Home");
        popup->setFocus();
        QTest::keyClick(popup, Qt::Key_Down);
        QCOMPARE(Preferences::shared().value(preference::calName), "Aquarium");
        QVERIFY(shown() == expected(true, {"Home", "Aquarium"}, "Aquarium"));
        QVERIFY(QFile::remove(sources + "a.source") && QFile::remove(sources + "b.source"));
        QVERIFY(shown() ==
                expected(true, {"Home", "Aquarium"}, "Aquarium")); // an empty list leaves the pop-up unchanged
    }

    void calendarReaders()
    {
        const QTemporaryDir folder;
        const auto path = [&](const char *name) { return folder.filePath(QLatin1String(name)); };
        using Names = std::optional<QStringList>;
        const char writable[] = "com.apple.ical.sources.naivereadwrite";
        QCOMPARE(calendars::readCalendarsPostTiger(path("none")), Names(QStringList{}));
        QVERIFY(writeFile(path("Sources/a/Info.plist"),
                          propertyList(plistText("Title", "Home") + plistText("Type", writable))));
        QVERIFY(writeFile(path("Sources/b/deep/Info.plist"),
                          propertyList(plistText("Title", "Work") + plistText("Type", writable))));
        QVERIFY(writeFile(path("Sources/c/Info.plist"),
                          propertyList(plistText("Title", "Web") + plistText("Type", "subscribed"))));
        QVERIFY(writeFile(path("Sources/d/Info.plist"), propertyList(plistText("Type", writable))));
        QVERIFY(writeFile(path("Sources/e/Info.plist"), "garbage"));
        QVERIFY(writeFile(path("Sources/f/Other.plist"),
                          propertyList(plistText("Title", "Other") + plistText("Type", writable))));
        Names found = calendars::readCalendarsPostTiger(path("Sources"));
        QVERIFY(found);
        found->sort();
        QCOMPARE(found, Names(QStringList{"Home", "Work"}));
        QCOMPARE(calendars::readCalendarsPostTiger(path("Sources/e/Info.plist")), Names());

        const auto entry = [](const char *key, const QByteArray &content) {
            return QByteArray("<key>") + key + "</key><dict>" + content + "</dict>";
        };
        const auto type = [](const char *element) { return QByteArray("<key>Type</key>") + element; };
        const QByteArray view = entry("1", type("<integer>1</integer>") + plistText("Description", "Home")) +
                                entry("2", type("<integer>4</integer>") + plistText("Description", "Web")) +
                                entry("3", type("<string>1</string>") + plistText("Description", "Text")) +
                                entry("4", type("<integer>1</integer>")) +
                                entry("5", type("<real>2.5</real>") + plistText("Description", "Work"));
        QVERIFY(writeFile(path("sources.plist"), propertyList(entry("SourcesView", view))));
        QVERIFY(writeFile(path("empty.plist"), propertyList(entry("SourcesView", {}))));
        QVERIFY(writeFile(path("other.plist"), propertyList(entry("Sources", view))));
        QCOMPARE(calendars::readCalendarsPreTiger(path("sources.plist")), Names(QStringList{"Home", "Work"}));
        for (const char *name : {"empty.plist", "other.plist", "none.plist", "Sources"})
            QCOMPARE(calendars::readCalendarsPreTiger(path(name)), Names());
    }

    void signUp()
    {
        qputenv("EMAIL", "keeper@example.org");
        const auto restore = qScopeGuard([] { qunsetenv("EMAIL"); });
        Program program;
        program.start(testFile("minimal.xml"));
        program.controller().performCommand(Command::MailingList);
        QDialog *window = EListSignupController::sharedInstance().window();
        auto *field = window->findChild<QLineEdit *>("addressField");
        QVERIFY(window->isVisible() && window->isModal());
        QCOMPARE(field->text(), "keeper@example.org");

        for (const char *noAddress : {"", "  "}) {
            field->setText(noAddress);
            button(window, "joinButton")->click();
            QVERIFY(window->isVisible());
        }
        QCOMPARE(program.beeps, 2);
        button(window, "cancelButton")->click();
        QVERIFY(!window->isVisible());
        QVERIFY(program.openedUrls.isEmpty());

        program.controller().performCommand(Command::MailingList);
        field->setText("me & you+fish@example.org");
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(!window->isVisible());
        QCOMPARE(program.openedUrls.size(), 1);
        const QUrl url(program.openedUrls.first());
        const QUrlQuery query(url);
        QCOMPARE(url.scheme() + ':' + url.path(), QString("mailto:") + product::listAddress);
        QCOMPARE(query.queryItemValue("subject", QUrl::FullyDecoded), "Brinemark eList Signup");
        QCOMPARE(query.queryItemValue("body", QUrl::FullyDecoded), "me & you+fish@example.org");
        QCOMPARE(program.beeps, 2);
    }

    void widths()
    {
        int mainWidth = 0;
        {
            Program program;
            program.start(testFile("minimal.xml"));
            auto *splitter = program.window().findChild<QSplitter *>("splitView");
            program.window().setGeometry(20, 30, 760, 500);
            splitter->setSizes({10, 750});
            QCOMPARE(program.window().tankListView()->width(), 142);
            splitter->setSizes({750, 10});
            QCOMPARE(program.window().mainView().width(), 320);
            splitter->setSizes({333, 427});
            mainWidth = program.window().mainView().width();
            QVERIFY(program.endsAfter([&] { program.delegate().terminate(); }));
        }
        QCOMPARE(Preferences::shared().variant("tankListViewWidth"), QVariant(QString("333")));
        QCOMPARE(Preferences::shared().variant("mainViewWidth"), QVariant(QString::number(mainWidth)));
        Program program(Program::KeepPreferences);
        program.start(testFile("minimal.xml"));
        QCOMPARE(program.window().tankListView()->width(), 333);
        QCOMPARE(program.window().mainView().width(), mainWidth);
        QCOMPARE(program.window().geometry(), QRect(20, 30, 760, 500));
    }
};

BRINEMARK_APP_TEST(TestStartup)
#include "tst_startup.moc"
