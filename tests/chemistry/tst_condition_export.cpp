// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/ConditionExport.h"

#include "model/Tank.h"
#include "support/AlertDriver.h"
#include "support/Files.h"
#include "support/PanelDriver.h"
#include "support/TestProgram.h"
#include "ui/SavePanel.h"

#include <QScopeGuard>

using namespace brinemark;

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

    void writesTheLog()
    {
        const QString path = m_folder->filePath(QStringLiteral("log.csv"));
        QVERIFY(test::writeFile(path, "old and longer than what comes"));
        test::onNextQuestion(QMessageBox::Yes);
        begin();
        addTest(8.4F); // after the panel opens: the log is read when the panel is answered
        QVERIFY(test::answerPanel("exportPanel", m_folder->filePath(QStringLiteral("log"))));
        QCOMPARE(test::bytesOf(path), QByteArray("pH\r8.2\r8.4\r"));
        QCOMPARE(entries(), QStringList{"log.csv"});
    }

    /// The proposed file name can be accepted as it is, in the documents folder.
    void proposesTheTanksName()
    {
        m_tank->name = QStringLiteral("../a/b:%@ %i");
        const QString documents = QDir::homePath() + QStringLiteral("/Documents");
        const auto cleanUp = qScopeGuard([&] { QDir(documents).removeRecursively(); });
        QVERIFY(QDir().mkpath(documents));
        begin();
        auto *panel = test::awaitWindow<QFileDialog>("exportPanel");
        QVERIFY(panel);
        QMetaObject::invokeMethod(panel, "accept");
        QCoreApplication::processEvents();
        const QString name = fileNameFor(formatText(text("ExportName"), {m_tank->name})) + QStringLiteral(".csv");
        QCOMPARE(test::entriesOf(documents), QStringList{name});
    }

    /// A failed export shows nothing and keeps the old file: the log has a line about it.
    void failuresLeaveWhatWasThere()
    {
        const QString old = m_folder->filePath(QStringLiteral("old.csv"));
        QVERIFY(test::writeFile(old, "old"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Cannot write ")));
        begin();
        QVERIFY(test::answerPanel("exportPanel", old + QStringLiteral("/log.csv")));
        QVERIFY(!test::shownAlert());
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
    void begin() { beginConditionExport(m_window.get(), m_tank, {{QStringLiteral("ph"), text("Ph")}}); }
    QStringList entries() const { return test::entriesOf(m_folder->path()); }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<Tank> m_tank;
};

BRINEMARK_TEST(QApplication, TestConditionExport)
#include "tst_condition_export.moc"
