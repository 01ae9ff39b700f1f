// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/SavePanel.h"

#include "support/AlertDriver.h"
#include "support/Files.h"
#include "support/PanelDriver.h"
#include "support/RecordingShell.h"
#include "support/TestProgram.h"

using namespace brinemark;
using test::row;

class TestSavePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_shell.reset(); // takes the shared shell with it
        m_shell = std::make_unique<test::RecordingShell>();
        m_shell->openFile = m_folder->filePath(QStringLiteral("tanks.xml"));
        m_shell->window.show();
        m_chosen.clear();
    }

    void suffixes_data()
    {
        test::columns<QString, int, QString>("typed", "kind", "chosen");
        using S = QString;
        row("without a suffix", S("reef"), 0, S("reef.png"));
        row("of the other kind", S("reef"), 1, S("reef.pdf"));
        row("with it", S("reef.png"), 0, S("reef.png"));
        row("with that of another kind", S("reef.pdf"), 0, S("reef.pdf"));
        row("in capitals", S("reef.PNG"), 0, S("reef.PNG"));
        row("a full stop in the name", S("Reef 2.5"), 0, S("Reef 2.5.png"));
    }
    void suffixes()
    {
        const auto [typed, kind, chosen] = test::fetch<QString, int, QString>("typed", "kind", "chosen");
        open();
        auto *panel = test::awaitWindow<QFileDialog>("reefPanel");
        QVERIFY(panel);
        // What the toolkit asks for before it shows the desktop's panel instead.
        QCOMPARE(panel->metaObject(), &QFileDialog::staticMetaObject);
        QVERIFY(!panel->testOption(QFileDialog::DontUseNativeDialog));
        panel->selectNameFilter(panel->nameFilters().at(kind));
        QVERIFY(test::answerPanel("reefPanel", m_folder->filePath(typed)));
        QCOMPARE(m_chosen, QStringList{m_folder->filePath(chosen)});
    }

    /// The desktop's panel asks about the name as it was typed, without the suffix.
    void asksAfterTheDesktop()
    {
        for (const auto answer : {AlertDefault, AlertAlternate}) {
            init();
            const QString there = m_folder->filePath(QStringLiteral("reef.png"));
            QVERIFY(test::writeFile(there, "old"));
            open();
            auto *panel = test::awaitWindow<QFileDialog>("reefPanel");
            QVERIFY(panel);
            auto *name = panel->findChild<QLineEdit *>("fileNameEdit");
            name->setObjectName("absent"); // as in a panel of the desktop
            name->setText(m_folder->filePath(QStringLiteral("reef")));
            QMetaObject::invokeMethod(panel, "accept");
            QTRY_VERIFY(test::shownAlert());
            QVERIFY(m_chosen.isEmpty());
            test::shownAlert()->button(answer)->click();
            QTRY_COMPARE(m_chosen, QStringList{answer == AlertDefault ? there : QString()});
        }
    }

    void asksBeforeReplacing()
    {
        for (const auto answer : {QMessageBox::Yes, QMessageBox::No}) {
            init();
            const QString there = m_folder->filePath(QStringLiteral("reef.png"));
            QVERIFY(test::writeFile(there, "old"));
            open();
            const bool replace = answer == QMessageBox::Yes;
            test::onNextQuestion(answer);
            // The question is about the file with the added suffix. After "No" the panel stays open.
            QCOMPARE(test::answerPanel("reefPanel", m_folder->filePath(QStringLiteral("reef"))), replace);
            QCOMPARE(m_chosen, replace ? QStringList{there} : QStringList());
            if (!replace)
                QVERIFY(test::answerPanel("reefPanel", {}));
            QCOMPARE(m_chosen.size(), 1);
            QCOMPARE(test::bytesOf(there), QByteArray("old"));
        }
    }

    void fileNames_data()
    {
        test::columns<QString, QString>("text", "name");
        using S = QString;
        const S fish = S::fromUtf8("\xF0\x9F\x90\xA0");
        row("folders", S("a/b\\c:d"), S("a-b-c-d"));
        row("up", S("../../etc"), S("-..-etc"));
        row("hidden by blanks between", S(". .Reef"), S("Reef"));
        row("nothing", S(), S("-"));
        row("control characters", S("a") + QChar(0) + S("b\nc"), S("a-b c"));
        row("long", S(300, u'x'), S(200, u'x'));
        row("long, of umlauts", S(300, u'\u00e4'), S(100, u'\u00e4'));
        row("long, of surrogates", fish.repeated(100), fish.repeated(50));
        row("a surrogate cut in two", S(199, u'x') + fish, S(199, u'x'));
        row("half a surrogate", S("a") + QChar(0xd83d), S("a"));
    }
    void fileNames()
    {
        const auto [text, name] = test::fetch<QString, QString>("text", "name");
        QCOMPARE(fileNameFor(text), name);
        // The panel proposes the name in its folder, and a file of that name can be written.
        SavePanelOptions options{QStringLiteral("reefPanel")};
        options.proposedName = text.isEmpty() ? QStringLiteral(".") : text;
        options.kinds = {{QStringLiteral("csv"), QStringLiteral("Values (*.csv)")}};
        SavePanel panel(nullptr, options);
        QCOMPARE(panel.selectedFiles(), QStringList{m_folder->filePath(name)});
        QVERIFY(test::writeFile(m_folder->filePath(name + QStringLiteral(".csv")), "x"));
    }

private:
    void open()
    {
        SavePanelOptions options{QStringLiteral("reefPanel")};
        options.kinds = {{QStringLiteral("png"), QStringLiteral("Pictures (*.png)")},
                         {QStringLiteral("pdf"), QStringLiteral("Pages (*.pdf)")}};
        beginSavePanel(&m_shell->window, options, [this](const QString &path) { m_chosen << path; });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<test::RecordingShell> m_shell;
    QStringList m_chosen;
};

BRINEMARK_TEST(QApplication, TestSavePanel)
#include "tst_save_panel.moc"
