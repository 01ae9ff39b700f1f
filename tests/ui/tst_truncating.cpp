#include "ui/ElidedLabel.h"
#include "ui/TruncatingDelegate.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTableWidget>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace brinemark;

class TruncatingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cellShowsItsWholeText_data();
    void cellShowsItsWholeText();
    void modelsOwnToolTipWins();
    void labelShowsItsWholeText();

private:
    static QString toolTipAt(QWidget *widget, const QPoint &where);
};

/// The tool tip that resting the pointer brings up, as a person reads it.
QString TruncatingTest::toolTipAt(QWidget *widget, const QPoint &where)
{
    QToolTip::hideText();
    QTest::qWait(350); // hiding takes Qt its moment
    QHelpEvent rest(QEvent::ToolTip, where, widget->mapToGlobal(where));
    QApplication::sendEvent(widget, &rest);
    return QToolTip::isVisible() ? QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText() : QString();
}

void TruncatingTest::cellShowsItsWholeText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    const QString sentence = "The wrasse was shy and did not come out to feed";
    QTest::newRow("fits") << "krill" << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("too long") << sentence << sentence;
    QTest::newRow("several lines") << "a\nb"
                                   << "a\nb";
    QTest::newRow("looks like markup") << "<b>" + sentence + "</b> & co"
                                       << "<b>" + sentence + "</b> & co";
    QTest::newRow("fills the screen") << QString(50000, 'x') << QString(2000, 'x') + QStringLiteral("\u2026");
}

void TruncatingTest::cellShowsItsWholeText()
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

void TruncatingTest::modelsOwnToolTipWins()
{
    QTableWidget table(1, 1);
    table.setItemDelegate(new TruncatingDelegate(&table));
    table.setItem(0, 0, new QTableWidgetItem(QString(200, 'x')));
    table.item(0, 0)->setToolTip("measured at noon");
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    QCOMPARE(toolTipAt(table.viewport(), table.visualItemRect(table.item(0, 0)).center()), QString("measured at noon"));
}

void TruncatingTest::labelShowsItsWholeText()
{
    ElidedLabel label("Reef in the living room");
    label.resize(60, 20);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QCOMPARE(toolTipAt(&label, label.rect().center()), QString("Reef in the living room"));
    label.resize(600, 20);
    QCOMPARE(toolTipAt(&label, label.rect().center()), QString());
}

QTEST_MAIN(TruncatingTest)
#include "tst_truncating.moc"
