// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/DataRow.h"
#include "support/TestProgram.h"
#include "ui/ElidedLabel.h"
#include "ui/TruncatingDelegate.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTableWidget>
#include <QTest>
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
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("toolTip");
        const QString sentence = "The wrasse was shy and did not come out to feed";
        row("fits", "krill", QString());
        row("empty", QString(), QString());
        row("too long", sentence, sentence);
        row("several lines", "a\nb", "a\nb");
        row("looks like markup", "<b>" + sentence + "</b> & co", "<b>" + sentence + "</b> & co");
        row("fills the screen", QString(50000, 'x'), QString(2000, 'x') + QStringLiteral("\u2026"));
    }

    void cellShowsItsWholeText()
    {
        QFETCH(QString, text);
        QFETCH(QString, toolTip);
        QTableWidget table(1, 1);
        table.setItemDelegate(new TruncatingDelegate(&table));
        table.setItem(0, 0, new QTableWidgetItem(text));
        table.setColumnWidth(0, 120);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        QCOMPARE(toolTipAt(table.viewport(), table.visualItemRect(table.item(0, 0)).center()), toolTip);
    }

    void modelsOwnToolTipWins()
    {
        QTableWidget table(1, 1);
        table.setItemDelegate(new TruncatingDelegate(&table));
        table.setItem(0, 0, new QTableWidgetItem(QString(200, 'x')));
        table.item(0, 0)->setToolTip("measured at noon");
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        QCOMPARE(toolTipAt(table.viewport(), table.visualItemRect(table.item(0, 0)).center()),
                 QString("measured at noon"));
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
    /// The tool tip that resting the pointer brings up, as a person reads it.
    QString toolTipAt(QWidget *widget, const QPoint &where)
    {
        QToolTip::hideText();
        QTest::qWait(350); // hiding takes Qt its moment
        QHelpEvent rest(QEvent::ToolTip, where, widget->mapToGlobal(where));
        QApplication::sendEvent(widget, &rest);
        return QToolTip::isVisible() ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText() : QString();
    }
};

BRINEMARK_TEST(QApplication, TruncatingTest)
#include "tst_truncating.moc"
