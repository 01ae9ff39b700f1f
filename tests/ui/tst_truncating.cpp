// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"
#include "ui/ElidedLabel.h"
#include "ui/TruncatingDelegate.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace brinemark;
using brinemark::test::row;

class TruncatingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellShowsItsWholeText_data()
    {
        test::columns<QString, QString>("text", "toolTip");
        const QString sentence = "The wrasse was shy and did not come out to feed";
        row("fits", "krill", QString());
        row("empty", QString(), QString());
        row("too long", sentence, sentence);
        row("several lines", "a\nb", "a\nb");
        row("tool tip of the model", sentence, "measured at noon");
        row("looks like markup", "<b>" + sentence + "</b> & co", "<b>" + sentence + "</b> & co");
        row("fills the screen", QString(50000, 'x'), QString(2000, 'x') + QStringLiteral("\u2026"));
    }

    void cellShowsItsWholeText()
    {
        const auto [text, toolTip] = test::fetch<QString, QString>("text", "toolTip");
        QTableWidget table(1, 1);
        table.setItemDelegate(new TruncatingDelegate(&table));
        table.setItem(0, 0, new QTableWidgetItem(text));
        table.setColumnWidth(0, 120);
        if (QTest::currentDataTag() == QLatin1String("tool tip of the model"))
            table.item(0, 0)->setToolTip(toolTip);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        QCOMPARE(toolTipAt(table.viewport(), table.visualItemRect(table.item(0, 0)).center()), toolTip);
    }

    void labelShowsItsWholeText()
    {
        ElidedLabel label("Reef in the living room");
        label.resize(60, 20);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        QCOMPARE(toolTipAt(&label, label.rect().center()), QString("Reef in the living room"));
        label.resize(600, 20);
        QCOMPARE(toolTipAt(&label, label.rect().center()), QString());
    }

private:
    /// The tool tip shown for a resting pointer, as plain text.
    QString toolTipAt(QWidget *widget, const QPoint &where)
    {
        QToolTip::hideText();
        if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); }))
            return QStringLiteral("the last tool tip stays");
        QHelpEvent rest(QEvent::ToolTip, where, widget->mapToGlobal(where));
        QApplication::sendEvent(widget, &rest);
        return QToolTip::isVisible() ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText() : QString();
    }
};

BRINEMARK_TEST(QApplication, TruncatingTest)
#include "tst_truncating.moc"
