#include "chemistry/views/ConditionExport.h"

#include "base/text/Texts.h"
#include "model/Tank.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/RunTest.h"
#include "ui/SavePanel.h"

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

using namespace brinemark;
using test::row;

namespace
{

SavePanel *shownPanel()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == u"exportPanel")
            return qobject_cast<SavePanel *>(window);
    }
    return nullptr;
}

} // namespace

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
        auto test = std::make_shared<ConditionData>(m_tank.get());
        test->ph = 8.2F;
        m_tank->condition()->appendRecord(test);
    }

    void writesUnderTheSuffix_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        using S = QString;
        row("without a suffix", S("log"), S("log.csv"));
        row("with it", S("log.csv"), S("log.csv"));
        row("in capitals", S("log.CSV"), S("log.CSV"));
        row("a full stop in the name", S("Reef 2.5"), S("Reef 2.5.csv"));
    }
    void writesUnderTheSuffix()
    {
        QFETCH(QString, typed);
        QFETCH(QString, written);
        exportTo(m_folder->filePath(typed));
        QTRY_COMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{written});
        QCOMPARE(test::bytesOf(m_folder->filePath(written)), QByteArray("pH\r8.2\r"));
    }

    void proposesTheTanksName()
    {
        begin();
        QCOMPARE(shownPanel()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text(),
                 formatText(text("ExportName"), {m_tank->name}));
        shownPanel()->reject();
    }

    /// Where nothing can be written, what was there stays, and nobody is told.
    void failureLeavesNothing()
    {
        const QString blocked = m_folder->filePath(QStringLiteral("file"));
        QVERIFY(test::writeFile(blocked, "old"));
        exportTo(blocked + QStringLiteral("/log.csv"));
        QCoreApplication::processEvents();
        if (auto *question = QApplication::activeModalWidget())
            question->close();
        if (shownPanel())
            shownPanel()->reject();
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"file"});
        QCOMPARE(test::bytesOf(blocked), QByteArray("old"));
    }

    void theTankGoesMeanwhile()
    {
        begin();
        m_tank.reset();
        choose(m_folder->filePath(QStringLiteral("log.csv")));
        QCoreApplication::processEvents();
        QVERIFY(QDir(m_folder->path()).isEmpty());
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        using S = QString;
        row("plain", S("Reef"), S("Reef"));
        row("folders", S("a/b\\c:d"), S("a-b-c-d"));
        row("hidden", S("..Reef"), S("Reef"));
        row("nothing left", S(" ... "), S("-"));
        row("control characters", S("a") + QChar(0) + S("b\nc"), S("a-b c"));
        row("long", S(300, u'x'), S(200, u'x'));
        row("long, of surrogates", S::fromUtf8("\xF0\x9F\x90\xA0").repeated(100),
            S::fromUtf8("\xF0\x9F\x90\xA0").repeated(50));
    }
    void fileNames()
    {
        QFETCH(QString, text);
        QFETCH(QString, name);
        QCOMPARE(fileNameFor(text), name);
    }

private:
    void begin()
    {
        beginConditionExport(m_window.get(), m_tank, {{QStringLiteral("ph"), text("Ph")}});
        QTRY_VERIFY(shownPanel());
    }
    void choose(const QString &path)
    {
        shownPanel()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(shownPanel(), "accept", Qt::QueuedConnection);
        QCoreApplication::processEvents();
    }
    void exportTo(const QString &path)
    {
        begin();
        choose(path);
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<Tank> m_tank;
};

int main(int argc, char **argv)
{
    return test::run<QApplication, TestConditionExport>(argc, argv);
}

#include "tst_condition_export.moc"
