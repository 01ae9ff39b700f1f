// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TwoTanks.h"
#include "base/plist/XmlReader.h"

#include <QDragMoveEvent>

#include <type_traits>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// Drags a row to a position and drops it there, with the events that the toolkit sends. Returns the drop action that
/// the tree accepted while the drag hovered. `modifiers` can hold the copy key; `beforeDrop` runs before the drop.
Qt::DropAction drag(TreeWindow &w, const TreeItem &item, QPoint to, Qt::KeyboardModifiers modifiers = {},
                    const std::function<void()> &beforeDrop = {})
{
    const std::unique_ptr<QMimeData> data(w.outline->writeItem(item));
    const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(to, possible, data.get(), Qt::LeftButton, modifiers);
    QApplication::sendEvent(w.outline->viewport(), &enter);
    QDragMoveEvent move(to, possible, data.get(), Qt::LeftButton, modifiers);
    QApplication::sendEvent(w.outline->viewport(), &move);
    w.outline->repaint(); // draws the drop mark
    if (beforeDrop)
        beforeDrop();
    if (move.isAccepted()) {
        QDropEvent drop(to, possible, data.get(), Qt::LeftButton, modifiers);
        QApplication::sendEvent(w.outline->viewport(), &drop);
    } else {
        QDragLeaveEvent leave;
        QApplication::sendEvent(w.outline->viewport(), &leave);
    }
    w.outline->dragEnded();
    QCoreApplication::processEvents();
    return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
}

/// The lower edge of a row, where a drop goes between it and the next row.
QPoint below(const TreeWindow &w, const TreeItem &item)
{
    return w.rectOf(item).bottomLeft() + QPoint(20, -1);
}

} // namespace

class TestTankDrags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dragRecord_data()
    {
        QTest::addColumn<int>("row"); // the index of the dragged fish
        test::columns<QString, bool, QString, QString>("to", "copies", "inFirst", "inSecond");
        const QString all = "fish two three four";
        row("below the third", 0, "third", false, "two three fish four", "");
        row("to the other tank", 1, "second", false, "fish three four", "two");
        row("copied to the other tank", 1, "second", true, all, "two");
        row("on a row", 0, "on", false, all, "");
        row("beside the rows", 0, "nowhere", false, all, "");
    }

    void dragRecord()
    {
        const auto [row, to, copies, inFirst] = fetch<int, QString, bool, QString>("row", "to", "copies", "inFirst");
        TwoTanks w;
        w.outline->collapseAll();
        for (const auto &tank : {w.first, w.second}) {
            w.outline->expand(w.indexOf(TreeItem(*tank)));
            w.outline->expand(w.indexOf(*tank, ContainerKind::Fish));
        }
        const auto fish = w.first->fishListArray()[std::size_t(row)];
        w.tree.select(TreeItem(*fish));
        QVERIFY(w.save());

        const TreeItem third(*w.first->fishListArray()[2]);
        const QPoint position = to == "third"    ? below(w, third)
                                : to == "second" ? below(w, TreeItem(*w.second->fish()))
                                : to == "on"     ? w.rectOf(third).center()
                                                 : QPoint(20, w.outline->viewport()->height() - 3);
        const bool changed = to == "third" || to == "second";
        const Qt::DropAction action = drag(w, TreeItem(*fish), position, copies ? Qt::ControlModifier : Qt::NoModifier);

        QCOMPARE(action, !changed ? Qt::IgnoreAction : copies ? Qt::CopyAction : Qt::MoveAction);
        QCOMPARE(w.fishOf(*w.first).join(' '), inFirst);
        QTEST(w.fishOf(*w.second).join(' '), "inSecond");
        QCOMPARE(w.window.isWindowModified(), changed);
        const TreeItem selected = w.tree.currentSelectedItem();
        QVERIFY(selected.isRecord());
        QCOMPARE(selected.name(), fish->name);
        QCOMPARE(selected.record != fish.get(), copies);
        QCOMPARE(selected.record->tank.get(), selected.tank);
        QCOMPARE(selected.tank, to == "second" ? w.second.get() : w.first.get());
        QCOMPARE(w.currentTank(), selected.tank);
        QCOMPARE(w.currentView(), MainView::LivestockItem);
    }

    void dragTank()
    {
        TwoTanks w;
        const auto third = w.addTank("third");
        w.outline->collapseAll();
        w.tree.select(TreeItem(*w.first));
        QVERIFY(w.save());
        const auto order = [&] { return listOf(w.tree.list(), &Tank::name).join(' '); };
        drag(w, TreeItem(*w.first), w.rectOf(TreeItem(*w.first)).center() + QPoint(0, 2));
        QCOMPARE(order(), "first second third");
        QVERIFY(!w.window.isWindowModified());
        drag(w, TreeItem(*w.first), w.rectOf(TreeItem(*w.second)).center());
        QCOMPARE(order(), "second first third");
        QVERIFY(w.window.isWindowModified());
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.first));
        QCOMPARE(w.currentTank(), w.first.get());
        drag(w, TreeItem(*third), w.rectOf(TreeItem(*w.second)).center());
        QCOMPARE(order(), "second third first");
        QCOMPARE(w.currentTank(), third.get());
    }

    void collectionsAreNotDragged()
    {
        TwoTanks w;
        for (const TreeItem &item : {TreeItem(*w.first->fish()), TreeItem(*w.first->note()), TreeItem()})
            QVERIFY(!w.outline->writeItem(item));
        const std::unique_ptr<QMimeData> tank(w.outline->writeItem(TreeItem(*w.first)));
        QCOMPARE(*plist::readXml(tank->data(pasteboard::tank)).value.string(), "tank available");
        const std::unique_ptr<QMimeData> fish(w.outline->writeItem(TreeItem(*w.records[0])));
        QCOMPARE(*plist::readXml(fish->data(pasteboard::livestock)).value.string(), "fish available");
        w.outline->dragEnded();
    }

    /// A drag from another program may have the same type, but no record in this program. The tree refuses dragged
    /// files.
    void foreignDragIsRefused()
    {
        TwoTanks w;
        QWidget *viewport = w.outline->viewport();
        const QPoint position = below(w, TreeItem(*w.first->fish()));
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile("/tank.xml")});
        QDragEnterEvent withFiles(position, Qt::CopyAction, &files, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &withFiles);
        QVERIFY(!withFiles.isAccepted());

        const auto data = pasteboardWith(xml("fish available"), xml("TankFish"));
        const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(position, possible, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &enter);
        QVERIFY(enter.isAccepted());
        QDragMoveEvent move(position, possible, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &move);
        QVERIFY(!move.isAccepted());
        QDropEvent drop(position, possible, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &drop);
        QVERIFY(!drop.isAccepted());
        QCOMPARE(w.first->fishListArray().size(), 4U);
    }

    /// Rows that can take what is dragged open when the drag stays over them, and close again unless it is dropped
    /// there.
    void hoveringOpens()
    {
        TwoTanks w;
        const auto third = w.addTank("third");
        w.outline->collapseAll();
        w.outline->expand(w.indexOf(TreeItem(*w.second)));
        w.tree.select(TreeItem(*w.records[0]));
        QVERIFY(w.save());
        const TreeItem fish(*w.records[0]);
        const TreeItem group(*w.second->fish());
        const auto opened = [&w](const TreeItem &dragged, const TreeItem &over, QPoint offset = {}) {
            bool opens = false;
            drag(w, dragged, w.rectOf(over).center() + offset, {}, [&] {
                QTest::qWait(500);
                opens = w.tree.isExpanded(over);
                QVERIFY(!opens); // not before a pause
                QTest::qWait(400);
                opens = w.tree.isExpanded(over);
            });
            return opens;
        };
        QVERIFY(!opened(TreeItem(*w.first), TreeItem(*third), QPoint(0, 1)));
        QVERIFY(w.save());
        QVERIFY(!opened(fish, TreeItem(*w.second->plant())));
        QVERIFY(opened(fish, TreeItem(*third)));
        QVERIFY(opened(fish, group));
        for (const TreeItem &item : {TreeItem(*third), group}) {
            QVERIFY(!w.tree.isExpanded(item));
            QVERIFY(!*item.expandedFlag());
        }
        QVERIFY(!w.window.isWindowModified());

        // The drag opens two tanks on its way to a group of one of them, which is below the rows opened before.
        const auto fourth = w.addTank("fourth");
        w.tree.select(fish);
        const TreeItem target(*fourth->fish());
        const std::unique_ptr<QMimeData> data(w.outline->writeItem(fish));
        const auto send = [&]<class Event>(std::type_identity<Event>, QPoint to) {
            Event event(to, Qt::MoveAction, data.get(), Qt::LeftButton, {});
            QApplication::sendEvent(w.outline->viewport(), &event);
        };
        send(std::type_identity<QDragEnterEvent>(), w.rectOf(TreeItem(*third)).center());
        for (const auto &tank : {third, fourth}) {
            send(std::type_identity<QDragMoveEvent>(), w.rectOf(TreeItem(*tank)).center());
            QTRY_VERIFY(w.tree.isExpanded(TreeItem(*tank)));
        }
        send(std::type_identity<QDropEvent>(), below(w, target));
        QCOMPARE(w.fishOf(*fourth), QStringList("fish"));
        QVERIFY(w.tree.isExpanded(target) && fourth->tankExpanded && *target.expandedFlag());
        QVERIFY(!w.tree.isExpanded(TreeItem(*third)) && !third->tankExpanded);
    }

    /// A tank goes below all rows of the tank that it is dropped on. If these end below the view, the mark is at its
    /// edge.
    void endOfALongListIsMarked()
    {
        TwoTanks w;
        for (int i = 0; i < 40; ++i)
            w.add<FishData>(*w.second, QString::number(i));
        w.outline->expandAll();
        w.tree.select(TreeItem(*w.first));
        const auto bottom = [&w] { return w.outline->viewport()->grab().toImage().copy(0, 600, 200, 200); };
        const QImage before = bottom();
        QImage marked;
        drag(w, TreeItem(*w.first), w.rectOf(TreeItem(*w.second)).center(), {}, [&] { marked = bottom(); });
        QVERIFY(marked != before);
    }

    /// A request of the desktop may open another file during a drag.
    void documentReplacedDuringADrag()
    {
        TwoTanks w;
        w.tree.select(TreeItem(*w.records[0]));
        const QPoint position = below(w, TreeItem(*w.first->fish()));
        int before = 0;
        const auto replace = [&] {
            w.first.reset();
            w.second.reset();
            w.records.clear();
            QVERIFY(w.read(QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml")));
            before = w.tank(0).fish()->count();
        };
        drag(w, TreeItem(*w.records[0]), position, {}, replace);
        QVERIFY(before > 0);
        QCOMPARE(w.tank(0).fish()->count(), before);
        QVERIFY(!w.window.isWindowModified());
        w.tree.updateDisplay();
    }
};

BRINEMARK_TEST(QApplication, TestTankDrags)
#include "tst_tank_drags.moc"
