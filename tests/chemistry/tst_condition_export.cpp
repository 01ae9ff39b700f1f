// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/ConditionExport.h"

#include "base/text/Texts.h"
#include "model/Tank.h"
#include "support/AlertDriver.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/PanelDriver.h"
#include "support/TestProgram.h"
#include "ui/SavePanel.h"

#include <QScopeGuard>
#include <QTemporaryDir>

using namespace brinemark;
using test::row;

class TestConditionExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->show();
        m_folder = std::make_unique<QTemporaryDir>();
        m_tank = std::make_shared<Tank>(QStringLiteral("Reef 2.5"));
        addTest(8.2F);
    }

    void writesTheLog_data()
    {
        QTest::addColumn<bool>("there");
        row("a new file", false);
        row("over one that is there", true);
    }
    void writesTheLog()
    {
        QFETCH(bool, there);
        const QString path = m_folder->filePath(QStringLiteral("log.csv"));
        if (there) {
            QVERIFY(test::writeFile(path, "old and longer than what comes"));
            test::onNextQuestion(QMessageBox::Yes);
        }
        begin();
        addTest(8.4F); // what is exported is what the log holds when the panel is answered
        QVERIFY(test::answerPanel("exportPanel", m_folder->filePath(QStringLiteral("log"))));
        QCOMPARE(test::bytesOf(path), QByteArray("pH\r8.2\r8.4\r"));
        QCOMPARE(entries(), QStringList{"log.csv"});
    }

    void proposesTheTanksName_data()
    {
        QTest::addColumn<QString>("tank");
        using S = QString;
        row("plain", S("Reef 2.5"));
        row("hidden", S(".Reef"));
        row("a format", S("%@ %i"));
    }
    /// Whatever the tank is called: the proposal can be accepted as it is, in the documents folder.
    void proposesTheTanksName()
    {
        QFETCH(QString, tank);
        m_tank->name = tank;
        const QString documents = QDir::homePath() + QStringLiteral("/Documents");
        const auto cleanUp = qScopeGuard([&] { QDir(documents).removeRecursively(); });
        QVERIFY(QDir().mkpath(documents));
        begin();
        auto *panel = test::awaitWindow<SavePanel>("exportPanel");
        QVERIFY(panel);
        QCOMPARE(panel->windowTitle(), text("ExportMessage"));
        QMetaObject::invokeMethod(panel, "accept");
        QCoreApplication::processEvents();
        const QString name = fileNameFor(formatText(text("ExportName"), {tank})) + QStringLiteral(".csv");
        QCOMPARE(QDir(documents).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList{name});
    }

    void failuresLeaveWhatWasThere_data()
    {
        // path: %1 for the folder
        test::columns<QString, bool>("path", "full");
        using S = QString;
        row("a folder that is none", S("%1/old.csv/log.csv"), false);
#ifdef Q_OS_LINUX
        row("a folder in which nobody can write", S("/proc/log.csv"), false);
#endif
#ifdef Q_OS_UNIX
        row("a full disk, over one that is there", S("%1/old.csv"), true);
#endif
    }
    /// No half file, the old one as it was, and nothing on the screen: only a line in the log.
    void failuresLeaveWhatWasThere()
    {
        QFETCH(QString, path);
        QFETCH(bool, full);
        const QString old = m_folder->filePath(QStringLiteral("old.csv"));
        QVERIFY(test::writeFile(old, "old"));
        path.replace(QStringLiteral("%1"), m_folder->path());
        if (path == old)
            test::onNextQuestion(QMessageBox::Yes);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Cannot write ")));
        begin();
        {
#ifdef Q_OS_UNIX
            std::optional<test::FullDisk> disk;
            if (full) {
                for (int i = 0; i < 20'000; ++i)
                    addTest(8.4F);
                disk.emplace();
            }
#endif
            QVERIFY(test::answerPanel("exportPanel", path));
        }
        QVERIFY(!test::shownAlert());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(entries(), QStringList{"old.csv"});
        QCOMPARE(test::bytesOf(old), QByteArray("old"));
    }

    void theTankGoesMeanwhile()
    {
        begin();
        m_tank.reset();
        QVERIFY(test::answerPanel("exportPanel", m_folder->filePath(QStringLiteral("log.csv"))));
        QCOMPARE(entries(), QStringList());
    }

private:
    void addTest(float ph)
    {
        auto test = std::make_shared<ConditionData>(m_tank.get());
        test->ph = ph;
        m_tank->condition()->appendRecord(test);
    }
    void begin()
    {
        beginConditionExport(m_window.get(), m_tank, {{QStringLiteral("ph"), text("Ph")}});
    }
    QStringList entries() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<Tank> m_tank;
};

BRINEMARK_TEST(QApplication, TestConditionExport)
#include "tst_condition_export.moc"
