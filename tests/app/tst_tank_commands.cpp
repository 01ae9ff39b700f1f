#include "app/TreeWindow.h"
#include "app/tree/PasteboardTypes.h"
#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"
#include "model/Containers.h"
#include "model/RecordDict.h"
#include "model/TankFile.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QDragMoveEvent>
#include <QMimeData>

using namespace brinemark;
using namespace brinemark::test;

namespace
{

/// Two tanks with one record of each livestock kind in the first, three more fish, and an activity.
struct Tanks : TreeWindow {
    std::shared_ptr<Tank> first;
    std::shared_ptr<Tank> second;
    std::vector<std::shared_ptr<ItemData>> records; ///< one of each kind, in the order of the containers

    Tanks()
        : TreeWindow(QDir::home().filePath("tanks.xml"))
    {
        first = addTank("first");
        second = addTank("second");
        records = {add<FishData>(*first, "fish"), add<PlantData>(*first, "plant"), add<InvertData>(*first, "invert"),
                   add<CoralData>(*first, "coral")};
        for (const char *name : {"two", "three", "four"})
            add<FishData>(*first, QLatin1String(name));
        first->scheduleListArray().push_back(std::make_shared<ScheduleData>());
        first->scheduleListArray().push_back(std::make_shared<ScheduleData>());
    }

    ItemData &record(ContainerKind kind) { return *records[std::size_t(kind)]; }
    QStringList fishOf(const Tank &tank) const
    {
        QStringList names;
        for (const auto &fish : tank.fishListArray())
            names << fish->name;
        return names;
    }
    quint32 changes() const { return document.changeCount(); }
};

/// Counts "ScheduleDataDeleted".
struct DeletedActivities : ModelObserver {
    int count = 0;
    void scheduleDataDeleted(ScheduleData &) override { ++count; }
};

std::unique_ptr<QMimeData> pasteboardWith(const QByteArray &livestock, const QByteArray &context)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(pasteboard::livestock, livestock);
    data->setData(pasteboard::itemContext, context);
    return data;
}

QByteArray xml(const QString &text)
{
    return plist::writeXml(plist::Value(text));
}

/// Drags a row to a place and drops it there, as the toolkit does it between the press and the release; answers what
/// the tree said while the drag hovered. Holding the copy key is a keyboard modifier. `beforeDrop` runs over that
/// place.
Qt::DropAction drag(TreeWindow &w, const TreeItem &item, QPoint to, Qt::KeyboardModifiers modifiers = {},
                    const std::function<void()> &beforeDrop = {})
{
    const std::unique_ptr<QMimeData> data(w.outline->writeItem(item));
    const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(to, possible, data.get(), Qt::LeftButton, modifiers);
    QApplication::sendEvent(w.outline->viewport(), &enter);
    QDragMoveEvent move(to, possible, data.get(), Qt::LeftButton, modifiers);
    QApplication::sendEvent(w.outline->viewport(), &move);
    w.outline->repaint(); // with its mark
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

/// The lower edge of a row: a drop between it and the next one.
QPoint below(const TreeWindow &w, const TreeItem &item)
{
    return w.rectOf(item).bottomLeft() + QPoint(20, -1);
}

} // namespace

class TestTankCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::clipboard()->clear(); }

    // ---- selecting

    void selectionChoosesTheView()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.second));
        const auto expect = [&](const TreeItem &item, MainView view) {
            QVERIFY(w.save());
            QVERIFY(!w.window.isWindowModified());
            w.tree.select(item);
            QCOMPARE(w.currentView(), view);
            QCOMPARE(w.currentTank(), item.tank);
            QCOMPARE(w.tree.currentSelectedItem(), item);
            QVERIFY(w.window.isWindowModified());
        };
        expect(TreeItem(*w.first), MainView::Tank);
        w.outline->expandAll();
        constexpr std::array views{MainView::LivestockGroup, MainView::LivestockGroup, MainView::LivestockGroup,
                                   MainView::LivestockGroup, MainView::Conditions,     MainView::Schedule,
                                   MainView::Inventory,      MainView::Expenses,       MainView::Notes};
        for (std::size_t kind = 0; kind < containerCount; ++kind) {
            expect(TreeItem(*w.first->container(ContainerKind(kind))), views[kind]);
            QCOMPARE(w.changes(), 1U);
        }
        for (const auto &record : w.records) {
            expect(TreeItem(*record), MainView::LivestockItem);
            QCOMPARE(w.changes(), 1U);
        }
    }

    void noSelection()
    {
        Tanks w;
        QVERIFY(w.save());
        w.outline->setCurrentIndex({});
        QCOMPARE(w.currentView(), MainView::None);
        QCOMPARE(w.currentTank(), nullptr);
        QCOMPARE(w.tree.selectedRow(), -1);
        QCOMPARE(w.changes(), 1U);
    }

    void currentSelectedArray()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.records[0]));
        QCOMPARE(w.tree.currentSelectedArray().size(), w.first->fishListArray().size());
        w.tree.select(TreeItem(*w.first->fish()));
        QVERIFY(w.tree.currentSelectedArray().empty());
    }

    void updateDisplayCountsNothing()
    {
        Tanks w;
        w.tree.select(TreeItem(w.record(ContainerKind::Coral)));
        QVERIFY(w.save());
        w.views.clear();
        w.tree.updateDisplay();
        QCOMPARE(w.changes(), 0U);
        QVERIFY(!w.window.isWindowModified());
        QCOMPARE(w.views, QList<MainView>{MainView::LivestockItem}); // the main view follows
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(w.record(ContainerKind::Coral)));
    }

    // ---- opening and closing

    void openingAndClosing()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.second));
        QVERIFY(w.save());
        w.outline->expand(w.indexOf(TreeItem(*w.first)));
        QVERIFY(w.first->tankExpanded);
        QCOMPARE(w.changes(), 1U);
        w.outline->collapse(w.indexOf(TreeItem(*w.first)));
        QVERIFY(!w.first->tankExpanded);
        QCOMPARE(w.changes(), 2U);
        w.outline->expand(w.indexOf(TreeItem(*w.first)));
        for (const ContainerKind kind :
             {ContainerKind::Fish, ContainerKind::Plant, ContainerKind::Invert, ContainerKind::Coral}) {
            const bool &flag = *w.first->expandedFlag(kind);
            w.outline->setExpanded(w.indexOf(*w.first, kind), true);
            QVERIFY(flag);
            const quint32 changes = w.changes();
            w.outline->setExpanded(w.indexOf(*w.first, kind), false);
            QVERIFY(!flag);
            w.outline->setExpanded(w.indexOf(*w.first, kind), true);
            QVERIFY(flag);
            QCOMPARE(w.changes(), changes + 2);
        }
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second));
    }

    void closingOverTheSelection_data()
    {
        QTest::addColumn<bool>("tank");
        QTest::newRow("tank") << true;
        QTest::newRow("group") << false;
    }

    void closingOverTheSelection()
    {
        QFETCH(bool, tank);
        Tanks w;
        const TreeItem closing = tank ? TreeItem(*w.first) : TreeItem(*w.first->plant());
        w.tree.select(TreeItem(w.record(ContainerKind::Plant)));
        QVERIFY(w.save());
        w.outline->collapse(w.indexOf(closing));
        QCOMPARE(w.tree.currentSelectedItem(), closing);
        QCOMPARE(w.currentView(), tank ? MainView::Tank : MainView::LivestockGroup);
        QCOMPARE(w.changes(), 2U); // closed, and selected
    }

    void openRowsComeBackFromTheFile()
    {
        const QString path = QDir::home().filePath("tanks.xml");
        {
            Tanks w;
            w.outline->collapseAll();
            w.outline->expand(w.indexOf(TreeItem(*w.first)));
            w.outline->expand(w.indexOf(*w.first, ContainerKind::Coral));
            w.tree.select(TreeItem(w.record(ContainerKind::Coral)));
            QVERIFY(w.save());
        }
        TreeWindow w;
        QVERIFY(w.read(path));
        QVERIFY(w.tree.isExpanded(TreeItem(w.tank(0))));
        QVERIFY(!w.tree.isExpanded(TreeItem(w.tank(1))));
        for (const ContainerKind kind : {ContainerKind::Fish, ContainerKind::Plant, ContainerKind::Invert})
            QVERIFY(!w.tree.isExpanded(TreeItem(*w.tank(0).container(kind))));
        QVERIFY(w.tree.isExpanded(TreeItem(*w.tank(0).coral())));
        QCOMPARE(w.tree.currentSelectedItem().name(), "coral"); // the selected row is in the file as well
        QCOMPARE(w.document.changeCount(), 0U);
    }

    // ---- deleting

    void deleteRecord_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("title");
        QTest::newRow("fish") << 0 << text("DeleteFishWarning");
        QTest::newRow("plant") << 1 << text("DeletePlantWarning");
        QTest::newRow("invert") << 2 << text("DeleteInvertWarning");
        QTest::newRow("coral") << 3 << text("DeleteCoralWarning");
    }

    void deleteRecord()
    {
        QFETCH(int, kind);
        QFETCH(QString, title);
        Tanks w;
        const auto record = w.records[std::size_t(kind)];
        record->name = "50 %@ \"^0\"";
        Container &list = *w.first->container(ContainerKind(kind));
        const int before = list.count();
        w.tree.select(TreeItem(*record));
        QVERIFY(w.save());

        QTest::keyClick(w.outline, Qt::Key_Delete);
        QVERIFY(shownAlert());
        QCOMPARE(shownAlert()->title(), formatText(title, {record->name}));
        QVERIFY(shownAlert()->title().contains(record->name));
        QCOMPARE(shownAlert()->message(), text("CannotUndoMessage"));
        QCOMPARE(shownAlert()->button(AlertAlternate)->text(), text("CancelLabel"));
        QVERIFY(pressAlertButton("alternateButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(list.count(), before);
        QCOMPARE(w.changes(), 0U);

        QTest::keyClick(w.outline, Qt::Key_Backspace);
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(list.count(), before - 1);
        QVERIFY(!list.contains(record.get()));
        QVERIFY(w.window.isWindowModified());
        QVERIFY(!w.undo.canUndo());
        QVERIFY(!w.tree.currentSelectedItem().isNone());
    }

    void deleteTank()
    {
        Tanks w;
        DeletedActivities deleted;
        w.tree.select(TreeItem(*w.first));
        w.tree.deleteTankEntry();
        QVERIFY(shownAlert());
        QCOMPARE(shownAlert()->title(), formatText(text("DeleteTankWarning"), {"first"}));
        QVERIFY(pressAlertButton("alternateButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(w.tree.list().count(), 2);

        QVERIFY(w.save());
        w.tree.deleteTankEntry();
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(w.tree.list().count(), 1);
        QCOMPARE(deleted.count, 2);
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second)); // moved up into its place
        QCOMPARE(w.currentTank(), w.second.get());
        QVERIFY(w.window.isWindowModified());
    }

    void deleteTheLowestTank()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.second));
        w.outline->collapseAll();
        w.tree.deleteTankEntry();
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.first));
        w.second.reset(); // nothing may point there any more
        w.outline->expandAll();
        w.tree.updateDisplay();
    }

    void deleteTheLastTank()
    {
        TreeWindow w(QDir::home().filePath("one.xml"));
        w.addTank("only");
        QVERIFY(w.save());
        w.tree.deleteTankEntry();
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(w.document.representedFilename(), QString());
        QCOMPARE(w.tree.list().count(), 1);
        QCOMPARE(w.tank(0).name, text("NewTankName"));
        QCOMPARE(w.currentTank(), &w.tank(0));
    }

    /// Between question and answer the record or tank may have gone another way.
    void deleteWhatIsGone()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.records[0]));
        w.tree.deleteItemDataEntry();
        w.first->fish()->removeEveryOccurrence(w.records[0].get());
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(w.fishOf(*w.first), QStringList({"two", "three", "four"}));

        DeletedActivities deleted;
        w.tree.select(TreeItem(*w.first));
        w.tree.deleteTankEntry();
        w.tree.list().removeAt(0);
        QVERIFY(pressAlertButton("defaultButton"));
        QTRY_VERIFY(!shownAlert());
        QCOMPARE(w.tree.list().count(), 1);
        QCOMPARE(deleted.count, 0);
        w.tree.updateDisplay();
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second));
    }

    void nothingToDeleteAsksNothing()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.first->fish()));
        QTest::keyClick(w.outline, Qt::Key_Delete);
        w.tree.deleteTankEntry();
        w.tree.deleteItemDataEntry();
        QVERIFY(!shownAlert());
        w.outline->setCurrentIndex({});
        w.tree.deleteTankEntry();
        w.tree.deleteItemDataEntry();
        QVERIFY(!shownAlert());
    }

    // ---- copy and paste

    void copyAndPaste_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("context");
        QTest::newRow("fish") << 0 << "TankFish";
        QTest::newRow("plant") << 1 << "TankPlant";
        QTest::newRow("invert") << 2 << "TankInvert";
        QTest::newRow("coral") << 3 << "TankCoral";
    }

    void copyAndPaste()
    {
        QFETCH(int, kind);
        QFETCH(QString, context);
        Tanks w;
        QImage picture(9, 7, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        ItemData &source = w.record(ContainerKind(kind));
        source.name = QString::fromUtf8("Größe & <Riff>");
        source.reefSafe = reefsafe::yes;
        source.ph = 8.25F;
        source.itemImage = ItemImage::fromImage(picture);
        w.tree.select(TreeItem(source));
        w.tree.copy();

        const QMimeData *data = QApplication::clipboard()->mimeData();
        QCOMPARE(data->text(), source.name);
        QCOMPARE(*plist::readXml(data->data(pasteboard::itemContext)).value.string(), context);
        QVERIFY(plist::readXml(data->data(pasteboard::livestock)).value.dict());

        w.tree.select(TreeItem(*w.second));
        w.outline->collapse(w.indexOf(TreeItem(*w.second)));
        QVERIFY(w.save());
        w.tree.paste();
        const Container &list = *w.second->container(ContainerKind(kind));
        QCOMPARE(list.count(), 1);
        const auto pasted = std::static_pointer_cast<ItemData>(list.recordAt(0));
        QVERIFY(pasted.get() != &source);
        QCOMPARE(pasted->name, source.name);
        QCOMPARE(pasted->itemContext(), source.itemContext());
        QCOMPARE(pasted->reefSafe, reefsafe::yes); // as in a file
        QCOMPARE(pasted->ph, 8.25F);
        QCOMPARE(pasted->itemImage.image().convertToFormat(picture.format()), picture);
        QCOMPARE(pasted->tank.get(), w.second.get());
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*pasted));
        QVERIFY(w.second->tankExpanded && *w.second->expandedFlag(ContainerKind(kind)));
        QVERIFY(w.outline->isExpanded(w.indexOf(*w.second, ContainerKind(kind))));
        QVERIFY(w.window.isWindowModified());
    }

    void copyTakesOnlyRecords()
    {
        Tanks w;
        QApplication::clipboard()->setText("before");
        w.tree.select(TreeItem(*w.first));
        QVERIFY(!w.tree.canCopy());
        w.tree.copy();
        w.tree.select(TreeItem(*w.first->fish()));
        w.tree.copy();
        QCOMPARE(QApplication::clipboard()->text(), "before");
        QVERIFY(!w.tree.canPaste());
        w.tree.paste();
        w.tree.select(TreeItem(*w.records[0]));
        QVERIFY(w.tree.canCopy());
    }

    void pasteWithoutATank()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.records[0]));
        w.tree.copy();
        w.outline->setCurrentIndex({});
        const QStringList before = w.fishOf(*w.first);
        w.tree.paste();
        QCOMPARE(w.fishOf(*w.first), before);
        QVERIFY(w.fishOf(*w.second).isEmpty());
    }

    void damagedPasteboard_data()
    {
        QTest::addColumn<QByteArray>("livestock");
        QTest::addColumn<QByteArray>("context");
        const QByteArray good = plist::writeXml(recordDict(FishData("fish", nullptr)));
        const QByteArray fish = xml("TankFish");
        QTest::newRow("nothing in it") << QByteArray() << QByteArray();
        QTest::newRow("no context") << good << QByteArray();
        QTest::newRow("another context") << good << xml("TankSharks");
        QTest::newRow("a journal") << good << xml("TankNote");
        QTest::newRow("context is a number") << good << plist::writeXml(plist::Value(1));
        QTest::newRow("context is cut off") << good << fish.chopped(12);
        QTest::newRow("no record") << QByteArray() << fish;
        QTest::newRow("a text for a record") << xml("fish available") << fish;
        QTest::newRow("record cut off") << good.left(good.size() / 2) << fish;
        QTest::newRow("empty record") << plist::writeXml(plist::Value(plist::Dict())) << fish;
        QTest::newRow("zero bytes") << QByteArray(64, '\0') << fish;
        QByteArray wrong = good;
        wrong.replace("<string>fish</string>", "<array/>");
        QVERIFY(wrong != good);
        QTest::newRow("name of a wrong kind") << wrong << fish;
    }

    void damagedPasteboard()
    {
        QFETCH(QByteArray, livestock);
        QFETCH(QByteArray, context);
        Tanks w;
        w.tree.select(TreeItem(*w.second));
        QVERIFY(w.save());
        QApplication::clipboard()->setMimeData(pasteboardWith(livestock, context).release());
        w.tree.paste();
        QCOMPARE(w.changes(), 0U);
        for (const Container *container : w.second->tankItemsArray())
            QCOMPARE(container->count(), 0);
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second));
    }

    // ---- context menu

    void contextMenu()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.records[0]));
        const auto menuAt = [&](const TreeItem &item) -> QMenu * {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QPoint position = w.rectOf(item).center();
            QContextMenuEvent event(QContextMenuEvent::Mouse, position, w.outline->viewport()->mapToGlobal(position));
            QApplication::sendEvent(w.outline->viewport(), &event);
            return w.outline->findChild<QMenu *>("tankListMenu");
        };
        const auto enabled = [](const QMenu *menu) {
            QStringList names;
            for (const QAction *action : menu->actions()) {
                if (!action->isSeparator() && action->isEnabled())
                    names << action->text();
            }
            return names;
        };
        const QString rename = text("MenuTreeRename");
        const QString copy = text("MenuEditCopy");
        const QString paste = text("MenuEditPaste");
        const QString remove = text("DeleteTitle");

        for (const TreeItem &item : {TreeItem(*w.first->fish()), TreeItem(*w.first->note())}) {
            QVERIFY(!menuAt(item));
            QCOMPARE(w.tree.currentSelectedItem(), item); // the row under the mouse, all the same
        }
        QMenu *menu = menuAt(TreeItem(*w.second));
        QVERIFY(menu);
        QCOMPARE(enabled(menu), QStringList({rename, remove}));
        menu->close();

        menu = menuAt(TreeItem(*w.records[0]));
        QVERIFY(menu);
        QCOMPARE(enabled(menu), QStringList({text("Edit..."), rename, copy, remove}));
        menu->actions().at(0)->trigger();
        QCOMPARE(w.edited, QStringList("fish"));
        menu->close();
        w.tree.copy();
        menu = menuAt(TreeItem(*w.second));
        QVERIFY(menu);
        QCOMPARE(enabled(menu), QStringList({rename, paste, remove}));
        menu->actions().last()->trigger();
        QVERIFY(shownAlert());
        QVERIFY(pressAlertButton("alternateButton"));
        menu->close();
    }

    // ---- mouse and keyboard

    void doubleClick()
    {
        Tanks w;
        const auto doubleClick = [&](const TreeItem &item) {
            QTest::mouseDClick(w.outline->viewport(), Qt::LeftButton, {}, w.rectOf(item).center());
        };
        w.outline->collapseAll();
        doubleClick(TreeItem(*w.first));
        QVERIFY(w.first->tankExpanded);
        doubleClick(TreeItem(*w.first));
        QVERIFY(w.first->tankExpanded); // a tank opens only
        doubleClick(TreeItem(*w.first->invert()));
        QVERIFY(w.first->invertExpanded);
        doubleClick(TreeItem(w.record(ContainerKind::Invert)));
        QCOMPARE(w.edited, QStringList("invert"));
        doubleClick(TreeItem(*w.first->invert()));
        QVERIFY(!w.first->invertExpanded);
        const QPoint empty(5, w.outline->viewport()->height() - 2);
        QTest::mouseDClick(w.outline->viewport(), Qt::LeftButton, {}, empty);
        QCOMPARE(w.edited.size(), 1);
    }

    void keyboard()
    {
        Tanks w;
        w.outline->collapseAll();
        w.tree.select(TreeItem(*w.first));
        QTest::keyClick(w.outline, Qt::Key_Right);
        QVERIFY(w.first->tankExpanded);
        QTest::keyClick(w.outline, Qt::Key_Right);
        QCOMPARE(w.currentView(), MainView::LivestockGroup);
        QTest::keyClick(w.outline, Qt::Key_Return);
        QVERIFY(w.first->fishExpanded);
        QTest::keyClick(w.outline, Qt::Key_Down);
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.records[0]));
        QTest::keyClick(w.outline, Qt::Key_Return);
        QCOMPARE(w.edited, QStringList("fish"));
        QTest::keyClick(w.outline, Qt::Key_Left);
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.first->fish()));
        QTest::keyClick(w.outline, Qt::Key_Left);
        QVERIFY(!w.first->fishExpanded);
        QTest::keyClick(w.outline, Qt::Key_End);
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.second));
        QTest::keyClicks(w.outline, "first");
        QCOMPARE(w.tree.currentSelectedItem(), TreeItem(*w.first)); // typing finds a name
        w.outline->setCurrentIndex({});
        QTest::keyClick(w.outline, Qt::Key_Return);
    }

    void clickBesideTheRowsKeepsTheSelection()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.first));
        QTest::mouseClick(w.outline->viewport(), Qt::LeftButton, {}, {5, w.outline->viewport()->height() - 2});
        w.click(TreeItem(*w.first));
        QTest::mouseClick(w.outline->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          w.rectOf(TreeItem(*w.first)).center());
        QCOMPARE(w.currentTank(), w.first.get());
        QVERIFY(w.outline->selectionModel()->isSelected(w.indexOf(TreeItem(*w.first))));
    }

    // ---- dragging

    void dragRecord_data()
    {
        QTest::addColumn<int>("row"); // of the fish that is dragged
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("copies");
        QTest::addColumn<QString>("inFirst");
        QTest::addColumn<QString>("inSecond");
        const QString all = "fish two three four";
        QTest::newRow("below the third") << 0 << "third" << false << "two three fish four"
                                         << "";
        QTest::newRow("to the other tank") << 1 << "second" << false << "fish three four"
                                           << "two";
        QTest::newRow("copied to the other tank") << 1 << "second" << true << all << "two";
        QTest::newRow("copied within the tank") << 0 << "third" << true << "fish two fish three four"
                                                << "";
        QTest::newRow("on a row") << 0 << "on" << false << all << "";
        QTest::newRow("into a wrong group") << 0 << "plants" << false << all << "";
        QTest::newRow("beside the rows") << 0 << "nowhere" << false << all << "";
    }

    void dragRecord()
    {
        QFETCH(int, row);
        QFETCH(QString, to);
        QFETCH(bool, copies);
        QFETCH(QString, inFirst);
        Tanks w;
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
                                : to == "plants" ? below(w, TreeItem(*w.first->plant()))
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
        Tanks w;
        const auto third = w.addTank("third");
        w.outline->collapseAll();
        w.tree.select(TreeItem(*w.first));
        QVERIFY(w.save());
        const auto order = [&] {
            QStringList names;
            for (const auto &tank : w.tree.list())
                names << tank->name;
            return names.join(' ');
        };
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
        Tanks w;
        for (const TreeItem &item : {TreeItem(*w.first->fish()), TreeItem(*w.first->note()), TreeItem()})
            QVERIFY(!w.outline->writeItem(item));
        const std::unique_ptr<QMimeData> tank(w.outline->writeItem(TreeItem(*w.first)));
        QCOMPARE(*plist::readXml(tank->data(pasteboard::tank)).value.string(), "tank available");
        const std::unique_ptr<QMimeData> fish(w.outline->writeItem(TreeItem(*w.records[0])));
        QCOMPARE(*plist::readXml(fish->data(pasteboard::livestock)).value.string(), "fish available");
        w.outline->dragEnded();
    }

    /// What another program drags here may look the same; there is no record behind it. Files are not the tree's.
    void foreignDragIsRefused()
    {
        Tanks w;
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

    /// The tanks may be replaced under a drag, by an open-file request say.
    void documentReplacedDuringADrag()
    {
        Tanks w;
        w.tree.select(TreeItem(*w.records[0]));
        const QPoint position = below(w, TreeItem(*w.first->fish()));
        const auto replace = [&] {
            w.first.reset();
            w.second.reset();
            w.records.clear();
            QVERIFY(w.read(QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml")));
        };
        const int before = [&] {
            TankList list;
            return readTanks(readTankDictionary(QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml")).root, {}, list).ok
                       ? list.at(0)->fish()->count()
                       : -1;
        }();
        drag(w, TreeItem(*w.records[0]), position, {}, replace);
        QCOMPARE(w.tank(0).fish()->count(), before);
        QVERIFY(!w.window.isWindowModified());
        w.tree.updateDisplay();
    }
};

int main(int argc, char **argv)
{
    return runWithWidgets<TestTankCommands>(argc, argv);
}

#include "tst_tank_commands.moc"
