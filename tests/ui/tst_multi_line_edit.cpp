// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/MultiLineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QDirIterator>
#include <QMimeData>
#include <QRegularExpression>

using namespace brinemark;

class TestMultiLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingCanBePasted()
    {
        MultiLineEdit edit;
        edit.setPlainText(QStringLiteral("old"));
        edit.show();
        // What an empty clipboard of a desktop is. After clear(), that of the headless platform has not even this.
        QApplication::clipboard()->setMimeData(new QMimeData);
        edit.paste();
        QTest::keySequence(&edit, QKeySequence::Paste);
        QCOMPARE(edit.toPlainText(), QStringLiteral("old"));

        QApplication::clipboard()->setText(QStringLiteral("new "));
        edit.paste();
        QCOMPARE(edit.toPlainText(), QStringLiteral("new old"));
    }

    /// The toolkit's own editors may be used for text that cannot be edited, which takes nothing from the clipboard.
    void everyEditorIsGuarded()
    {
        const QRegularExpression editor(QStringLiteral("(new|public) Q(PlainText|Text)Edit\\b"));
        QDirIterator sources(QStringLiteral(BRINEMARK_SOURCE_DIR "/src"),
                             {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                             QDirIterator::Subdirectories);
        QStringList found;
        while (sources.hasNext()) {
            QFile file(sources.next());
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
            if (QString::fromUtf8(file.readAll()).contains(editor))
                found << sources.fileInfo().baseName();
        }
        found.sort();
        QCOMPARE(found, QStringList({"MessageText", "MultiLineEdit", "ProfileText"}));
    }
};

BRINEMARK_TEST(QApplication, TestMultiLineEdit)
#include "tst_multi_line_edit.moc"
