// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/LocalNumber.h"
#include "support/TestProgram.h"
#include "ui/Alerts.h"
#include "ui/CheckedLineEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QSignalSpy>

#include <functional>
#include <memory>

using namespace brinemark;
using test::local;
using test::row;

namespace
{

using Act = std::function<void(CheckedLineEdit &)>;
using Acts = QList<Act>;

enum Mode { Tested, MayBeUntested, Signed, Whole };

SFCheckedFormatter formatter(Mode mode)
{
    SFCheckedFormatter result(mode == Signed ? -9 : mode == MayBeUntested ? -1 : 0, 99, mode == Whole ? 0 : 2, 1);
    result.setUseNotTested(mode == MayBeUntested);
    return result;
}

void send(CheckedLineEdit &field, QEvent &&event)
{
    QCoreApplication::sendEvent(&field, &event);
}

Act typing(const QString &keys)
{
    return [=](CheckedLineEdit &field) {
        for (const char32_t c : keys.toUcs4()) // one key event a character, whatever its script
            send(field, QKeyEvent(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&c, 1)));
    };
}

Act typed(const char *keys)
{
    return [=](CheckedLineEdit &field) { QTest::keyClicks(&field, local(QString::fromLatin1(keys))); };
}

Act pressing(QKeySequence::StandardKey key)
{
    return [=](CheckedLineEdit &field) { QTest::keySequence(&field, key); };
}

Act pressing(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return [=](CheckedLineEdit &field) { QTest::keyClick(&field, key, modifiers); };
}

Act paste(const QString &text)
{
    return [=](CheckedLineEdit &field) {
        QApplication::clipboard()->setText(text);
        QTest::keySequence(&field, QKeySequence::Paste);
    };
}

/// Drops the text at the beginning of the field.
Act drop(const QString &text)
{
    return [=](CheckedLineEdit &field) {
        QMimeData data;
        data.setText(text);
        send(field, QDragEnterEvent(QPoint(1, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier));
        send(field, QDropEvent(QPointF(1, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier));
    };
}

/// Commits the text from an input method, after a preedit.
Act compose(const QString &text)
{
    return [=](CheckedLineEdit &field) {
        send(field, QInputMethodEvent(text, {}));
        QInputMethodEvent commit;
        commit.setCommitString(text);
        QCoreApplication::sendEvent(&field, &commit);
    };
}

Act select(int start, int length)
{
    return [=](CheckedLineEdit &field) { field.setSelection(start, length); };
}

Act caret(int position)
{
    return [=](CheckedLineEdit &field) { field.setCursorPosition(position); };
}

} // namespace

Q_DECLARE_METATYPE(Acts)

class TestCheckedEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_beeps = 0;
        setBeepHandler([this] { ++m_beeps; });
    }
    void cleanup() { setBeepHandler({}); }

    /// The text of the field after each way to edit, with "|" for the caret, and the final value.
    void edits_data()
    {
        test::columns<int, Acts, QString, int, double>("mode", "acts", "shown", "beeps", "value");
        const auto add = [](const char *name, Mode mode, const Acts &acts, const char *shown, int beeps, double value) {
            QString localShown = QString::fromUtf8(shown);
            row(name, int(mode), acts, localShown.contains(u'?') ? localShown : local(localShown), beeps, value);
        };
        const QString emoji = QString::fromUtf16(u"\U0001F4A7");
        const QString hebrew = QString::fromUtf16(u"\u05d0\u05d1");
        const auto all = pressing(QKeySequence::SelectAll);
        const auto undo = pressing(QKeySequence::Undo);
        const auto back = pressing(Qt::Key_Backspace);

        add("digits", Tested, {typed("7.25")}, "7.25|", 0, 7.25);
        add("letters", Tested, {typed("a7bc.2x5")}, "7.25|", 4, 7.25);
        add("letter over a selection", Tested, {typed("7.2"), all, typed("x")}, "[7.2]", 1, 7.2);
        add("above the range", Tested, {typed("100")}, "10|", 1, 10);
        add("second separator", Tested, {typed("1.25"), caret(1), typed(".")}, "1.|25", 0, 1.25);
        add("separator moved back", Tested, {typed("1.25"), typed(".")}, "125.|", 0, 99);
        add("separators only", Tested, {typed("...")}, ".|", 0, 0);
        add("separator, whole", Whole, {typed("1.2")}, "12|", 1, 12);
        add("minus", Signed, {typed("-3.5")}, "-3.5|", 0, -3.5);
        add("minus alone", Signed, {typed("-")}, "-|", 0, 0);
        add("minus twice", Signed, {typed("--2-")}, "-2|", 2, -2);
        add("minus, from 0", Tested, {typed("-5")}, "5|", 1, 5);
        add("minus, not tested", MayBeUntested, {typed("-5")}, "5|", 1, 5);
        add("minus pasted, not tested", MayBeUntested, {paste("-5")}, "?|", 0, -1);
        add("minus pasted behind", Signed, {paste("12-")}, "12.00|", 0, 12);
        add("below the range", Signed, {typed("-12")}, "-1|", 1, -1);
        add("emoji composed", Tested, {typed("1"), compose(emoji), typed("2")}, "1.002|", 0, 1);
        add("emoji pasted", Tested, {typed("1"), paste(emoji + "2" + emoji)}, "12.00|", 0, 12);
        add("composed letter", Tested, {typed("1"), compose("x"), typed("3")}, "13|", 1, 13);
        add("right to left pasted", Tested, {paste(QChar(0x202e) + hebrew + "34")}, "34.00|", 0, 34);
        add("400 digits pasted", Tested, {paste(QString(400, u'9'))}, "99.00|", 0, 99);
        add("400 zeros typed", Tested, {typing("0." + QString(398, u'0'))}, nullptr, 0, 0);
        add("dropped", Tested, {drop(local("x4.5"))}, "4.50|", 0, 4.5);
        add("letter dropped", Tested, {typed("5"), drop("x")}, "|5", 1, 5);
        add("backspace", Tested, {typed("12.5"), back}, "12.00|", 0, 12);
        add("backspace to nothing", Tested, {typed("1"), back}, "|", 0, 0);
        add("word deleted", Tested, {typed("12.5"), pressing(Qt::Key_Backspace, Qt::ControlModifier)}, "12.00|", 0, 12);
        add("delete, beyond the range", Tested, {typed("12.5"), caret(2), pressing(Qt::Key_Delete)}, "12|.5", 1, 12.5);
        add("all deleted, not tested", MayBeUntested, {typed("12.5"), all, back}, "|", 0, -1);
        add("cut", Tested, {typed("12.5"), select(2, 2), pressing(QKeySequence::Cut)}, "12|", 0, 12);
        add("nothing, not tested", MayBeUntested, {}, "|", 0, -1);
        add("undo after a refusal", Tested, {typed("1x"), undo}, "|", 1, 0);
        add("redo", Tested, {typed("12"), undo, pressing(QKeySequence::Redo)}, "12.00|", 0, 12);
        add("undo a correction", Tested, {typed("12.5"), back, undo}, "[12.5]", 0, 12.5);
        add("undo a paste", Tested, {typed("12.5"), all, paste("77x"), undo}, "[12.5]", 0, 12.5);
        add("redo after a refusal", Tested, {typed("1x"), pressing(QKeySequence::Redo)}, "1|", 1, 1);
    }
    void edits()
    {
        auto [mode, acts, shown, beeps, value] =
            test::fetch<int, Acts, QString, int, double>("mode", "acts", "shown", "beeps", "value");
        shown.replace("?", text("NotTested"_key));

        CheckedLineEdit field(formatter(Mode(mode)));
        field.show();
        field.setFocus();
        QStringList announced;
        connect(&field, &QLineEdit::textChanged, &field, [&](const QString &now) { announced << now; });
        for (const Act &act : acts) {
            act(field);
            // The last announced text is the one in the field.
            QVERIFY(announced.isEmpty() || announced.last() == field.text());
        }
        QString seen = field.text();
        if (field.hasSelectedText())
            seen.insert(field.selectionEnd(), u']').insert(field.selectionStart(), u'[');
        else
            seen.insert(field.cursorPosition(), u'|');
        if (!shown.isNull())
            QCOMPARE(seen, shown);
        QCOMPARE(m_beeps, beeps);
        QCOMPARE(field.value(), value);

        QTest::keyClick(&field, Qt::Key_Return);
        if (field.hasEdit())
            QCOMPARE(field.text(), value < 0 && mode == MayBeUntested
                                       ? text("NotTested"_key)
                                       : local(QString::number(value, 'f', mode == Whole ? 0 : 2)));
        QCOMPARE(field.value(), value);
    }

    void setsWithoutVetting()
    {
        CheckedLineEdit field(formatter(Tested));
        QSignalSpy edited(&field, &QLineEdit::textEdited);
        for (int round = 0; round < 2; ++round) {
            QLineEdit &base = field;
            base.setText("abc 1234");
            QCOMPARE(field.text(), QString("abc 1234"));
            QVERIFY(field.hasEdit());
            field.setText("xyz");
            QCOMPARE(field.text(), QString("xyz"));
            QVERIFY(!field.hasEdit());
            field.setValue(700); // a stored number beyond the range stays until it is edited
            QTest::keyClick(&field, Qt::Key_Return);
            QCOMPARE(field.text(), local("700.00"));
            QVERIFY(!field.hasEdit() && field.value() == 99);
            field.selectAll();
            QTest::keyClicks(&field, "5");
            QVERIFY(field.hasEdit());
        }
        QCOMPARE(edited.size(), 2);
        QCOMPARE(m_beeps, 0);
    }

    void knowsItsEdits()
    {
        CheckedLineEdit field(formatter(Tested));
        field.setValue(7);
        QTest::keyClicks(&field, "x");
        QVERIFY(!field.hasEdit());
        field.selectAll();
        QTest::keyClicks(&field, "8");
        field.undo();
        QVERIFY(!field.hasEdit());
        field.selectAll();
        QTest::keyClicks(&field, local("7.00"));
        QVERIFY(field.hasEdit());
        int finished = 0;
        connect(&field, &QLineEdit::editingFinished, &field, [&] { finished += field.text() == local("7.00"); });
        field.setText("7");
        QTest::keyClick(&field, Qt::Key_Home);
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, "7");
        QTest::keyClick(&field, Qt::Key_Return);
        QVERIFY(finished == 1 && field.hasEdit());
    }

private:
    int m_beeps = 0;
};

BRINEMARK_TEST(QApplication, TestCheckedEditing)
#include "tst_checked_editing.moc"
