// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/ShoalwatchController.h"
#include "app/ShoalwatchDelegate.h"
#include "app/documents/DocumentCommands.h"
#include "app/documents/TankDocument.h"
#include "app/startup/BrinemarkApp.h"
#include "app/tree/TankListController.h"
#include "app/window/MainWindow.h"
#include "base/Clock.h"
#include "base/PreferenceKeys.h"
#include "base/PropertyListSettings.h"
#include "model/Tank.h"
#include "model/TankFile.h"
#include "support/AlertDriver.h"
#include "support/Files.h"
#include "support/PanelDriver.h"
#include "support/TestProgram.h"
#include "ui/Desktop.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>

#include <initializer_list>
#include <memory>

namespace brinemark::test
{

/// During its lifetime answers every alert, sheet or panel, with the next of the given answers, and keeps its title. An
/// alert beyond the given answers is cancelled: its title shows it and the test does not hang.
class AlertScript : public QObject
{
public:
    AlertScript(std::initializer_list<AlertAnswer> answers = {})
        : m_answers(answers.begin(), answers.end())
    {
        startTimer(2);
    }

    void answerWith(AlertAnswer answer) { m_answers << answer; }

    QStringList titles;
    QStringList messages;

protected:
    void timerEvent(QTimerEvent *) override
    {
        AlertDialog *alert = shownAlert();
        if (!alert || alert == m_answered)
            return;
        m_answered = alert;
        // Queued: the answer may run another alert, during which this timer has to go on.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_answered)
                    answer(*m_answered);
            },
            Qt::QueuedConnection);
    }

private:
    void answer(AlertDialog &alert)
    {
        titles << alert.title();
        messages << alert.message();
        const AlertAnswer answer = m_answers.isEmpty() ? alert.cancelAnswer() : m_answers.takeFirst();
        if (QPushButton *button = alert.button(answer))
            button->click();
    }

    QList<AlertAnswer> m_answers;
    QPointer<AlertDialog> m_answered;
};

inline QString testFile(const QString &name)
{
    return QStringLiteral(BRINEMARK_TEST_DATA "/tanks/") + name;
}

/// The names of the tanks in a file, read without the program.
inline QStringList tankNamesIn(const QString &path)
{
    TankList tanks;
    const TankFileContent content = readTankDictionary(path);
    return content.ok && readTanks(content.root, path, tanks).ok ? listOf(tanks, &Tank::name) : QStringList();
}

/// Starts the program as main() does, with fresh preferences and a folder of its own, and ends it. Nothing is shown
/// before start(). By default the preferences are those of a program that has run before.
class Program
{
public:
    enum History { RanBefore, NeverRan, KeepPreferences };

    explicit Program(History history = RanBefore)
    {
        if (history != KeepPreferences) {
            // Objects of the same file share their values, so this clears those of the program.
            QSettings(Preferences::shared().path(), propertyListSettingsFormat()).clear();
            Preferences::shared().flush();
        }
        if (history == RanBefore) {
            Preferences::shared().set(preference::autoSaveOnQuit, false);
            Preferences::shared().set(preference::updateAuto, false);
        }
        desktop::setUrlHandler([this](const QUrl &url) {
            openedUrls << url.toString(QUrl::FullyEncoded);
            return true;
        });
        m_beepBefore = setBeepHandler([this] { ++beeps; });
        delegate().applicationWillFinishLaunching();
    }

    ~Program()
    {
        ShoalwatchDelegate::destroyEverything();
        desktop::setUrlHandler({});
        setBeepHandler(m_beepBefore);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Runs the start-up, with the file when one is given. Afterwards the document is unedited and no sheet is open.
    void start(const QString &file = {})
    {
        if (!file.isEmpty())
            delegate().applicationOpenFile(file);
        delegate().applicationDidFinishLaunching();
        settle();
    }

    /// Confirms the sheet that an untitled document opens for its new tank, and resets the change count.
    void settle()
    {
        QCoreApplication::processEvents();
        if (auto *sheet = shownWindow<QDialog>("tankSheet"))
            sheet->findChild<QPushButton *>("okButton")->click();
        QCoreApplication::processEvents();
        while (document().changeCount() != 0)
            document().documentModifiedWithChange(false);
    }

    /// Runs the event loop as main() does and calls `act` in it. True when the program ends by itself.
    static bool endsAfter(const std::function<void()> &act)
    {
        constexpr int stillRunning = 1;
        QTimer giveUp; // local: a later exit() would end the next panel instead
        giveUp.setSingleShot(true);
        QObject::connect(&giveUp, &QTimer::timeout, [] { QCoreApplication::exit(stillRunning); });
        QTimer::singleShot(0, qApp, [&] {
            act();
            giveUp.start(150);
        });
        return QCoreApplication::exec() != stillRunning;
    }

    [[nodiscard]] static ShoalwatchDelegate &delegate() { return ShoalwatchDelegate::sharedInstance(); }
    [[nodiscard]] static ShoalwatchController &controller() { return ShoalwatchController::sharedInstance(); }
    [[nodiscard]] static MainWindow &window() { return controller().window(); }
    [[nodiscard]] static TankDocument &document() { return controller().document(); }
    [[nodiscard]] static DocumentCommands &commands() { return controller().documents(); }
    [[nodiscard]] static TankListController &tree() { return TankListController::sharedInstance(); }
    [[nodiscard]] static QString path() { return document().representedFilename(); }

    [[nodiscard]] static QStringList tankNames() { return listOf(tree().list(), &Tank::name); }

    /// Renames the first tank in the tree, which is an edit of the document.
    static bool renameFirstTank(const QString &name)
    {
        QAbstractItemModel *rows = tree().tankList()->model();
        return rows->setData(rows->index(0, 0), name);
    }

    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }

    /// Copies a file into the program's folder, so that the test may write to it.
    QString copyOf(const QString &source, const QString &name = QStringLiteral("tanks.xml")) const
    {
        QFile::copy(source, filePath(name));
        QFile(filePath(name)).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return filePath(name);
    }

    /// Starts with a copy of a file and renames its first tank to "Edited". Returns the path of the copy.
    QString startEdited(const QString &file = QStringLiteral("minimal.xml"))
    {
        start(copyOf(testFile(file)));
        renameFirstTank(QStringLiteral("Edited"));
        return path();
    }

    QStringList openedUrls; ///< addresses passed to the browser or mail program
    int beeps = 0;

private:
    QTemporaryDir m_folder;
    std::function<void()> m_beepBefore;
};

/// As run(), under the program's application object and a fixed clock.
template <class Test>
int runWithApp(int argc, char **argv)
{
    const clock::FixedClock clock(QDateTime(QDate(2026, 3, 14), QTime(12, 0)));
    return run<BrinemarkApp, Test>(argc, argv);
}

} // namespace brinemark::test

/// As BRINEMARK_TEST, under the program's application object and a fixed clock.
#define BRINEMARK_APP_TEST(Test)                                                                                       \
    [[maybe_unused]] static const bool Test##Added =                                                                   \
        brinemark::test::addTest(__FILE__, &brinemark::test::runWithApp<Test>);
